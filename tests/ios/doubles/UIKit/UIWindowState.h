// The window that the keyboard types into.
#pragma once

#import <UIKit/UIKit.h>

namespace brimsound::doubles {

/// Nil when there is none.
UIWindow* currentKeyWindow();

} // namespace brimsound::doubles
