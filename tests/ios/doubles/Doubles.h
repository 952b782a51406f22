// UIKit in a test's hands: its clock, what it shows, and what a user does.
#pragma once

#import <UIKit/UIKit.h>

#include <array>

namespace brimsound::doubles {

/// As when the app starts: no animation is being made, no alert is shown, nobody has the keyboard, and there
/// is nothing to open URLs with.
void resetUIKit();

/// Lets time pass for what is animated. In seconds.
void advanceClock(double seconds);

/// Red, green, blue, alpha.
using Components = std::array<::CGFloat, 4>;

// How a view is seen: on its way to what it is while it is animated.
::CGRect shownFrame(::UIView*);
/// All zero without a background.
Components shownBackground(::UIView*);
::CGFloat shownAlpha(::UIView*);

/// The alert that is shown; nil when none is.
::UIAlertView* currentAlert();
/// Presses a button of the alert that is shown. False when none is or it has no such button.
bool pressAlertButton(NSInteger index);

/// Whether a controller was presented or dismissed with an animation, which takes half a second.
bool isSheetMoving();

/// What URLs can be opened: those with one of these schemes.
void setSchemesThatOpen(::NSArray* schemes);

/// Presses a row and lets go of it: it is selected instead of any other one, and the delegate is told. False
/// for a row that is not on view.
bool tapRow(::UITableView*, ::NSIndexPath*);
/// Swipes a row to the left and presses its button. False when the data source does not let it be deleted.
bool swipeToDelete(::UITableView*, ::NSIndexPath*);

void flip(::UISwitch*);
/// Puts more text behind what is in the field. It takes the keyboard for that.
void type(::UITextField*, ::NSString* text);
void pressReturn(::UITextField*);

} // namespace brimsound::doubles
