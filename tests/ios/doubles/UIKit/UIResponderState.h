// Who has the keyboard.
#pragma once

#import <UIKit/UIKit.h>

namespace brimsound::doubles {

/// Nil when nobody has it.
UIResponder* currentFirstResponder();

} // namespace brimsound::doubles
