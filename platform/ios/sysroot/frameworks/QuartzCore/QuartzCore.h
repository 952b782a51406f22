// The parts of QuartzCore in iOS 9 that the platform uses.
#pragma once

#import <QuartzCore/CALayer.h>
