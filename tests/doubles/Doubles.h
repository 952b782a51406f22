// Control of the simulated UIKit: its clock, its display, and the user's actions.
#pragma once

#import <UIKit/UIKit.h>

#include <array>

namespace brimsound::doubles {

/// Restores the state of an app that has just started: no animations, no alerts, and no programs for URLs.
void resetUIKit();

/// Advances the clock of animations, in seconds.
void advanceClock(double seconds);

/// Red, green, blue, alpha.
using Components = std::array<::CGFloat, 4>;

// The displayed state of a view, including during an animation.
::CGRect shownFrame(::UIView*);
/// All zero without a background.
Components shownBackground(::UIView*);
::CGFloat shownAlpha(::UIView*);

/// The current alert; nil when there is none.
::UIAlertController* currentAlert();
/// Presses a button of the current alert. Returns false when there is no alert or no such button.
bool pressAlertButton(NSInteger index);

/// Whether a controller is being presented or dismissed with an animation, which takes half a second.
bool isSheetMoving();

/// Only URLs with these schemes can be opened.
void setSchemesThatOpen(::NSArray* schemes);

/// Presses and releases a row. It becomes the only selected row, and the delegate is told. Returns false for
/// a row out of view.
bool tapRow(::UITableView*, ::NSIndexPath*);
/// Swipes a row to the left and presses its button. Returns false when the data source does not allow
/// deletion.
bool swipeToDelete(::UITableView*, ::NSIndexPath*);

void flip(::UISwitch*);
/// Appends text to that in the field, after giving it the keyboard.
void type(::UITextField*, ::NSString* text);
void pressReturn(::UITextField*);

} // namespace brimsound::doubles
