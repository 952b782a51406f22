// The state of the app.
#pragma once

#import <UIKit/UIKit.h>

namespace brimsound::doubles {

/// Nil when there is none.
::UIWindow* keyWindow();

/// Forgets the animations that were begun and not committed.
void resetAnimations();

/// Removes all alerts without an answer.
void dismissAlerts();

} // namespace brimsound::doubles
