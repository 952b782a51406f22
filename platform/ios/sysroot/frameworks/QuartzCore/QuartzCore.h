// What the pane uses of QuartzCore, as it is in iOS 9.
#pragma once

#import <QuartzCore/CALayer.h>
