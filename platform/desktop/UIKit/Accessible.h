// What the views tell assistive technology about themselves.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace brimsound {
class UIButton;
class UISlider;
class UIView;
}

namespace brimsound::desktop {

enum class AccessibleRole : std::uint8_t {
    /// The view means nothing by itself: what is in it counts.
    None,
    /// Rows of various kinds in groups.
    Table,
    /// Rows of one kind.
    List,
    Row,
    Label,
    Slider,
    Switch,
    Button,
    TextField,
    Alert,
    Dialog,
};

struct AccessibleRange {
    double value = 0;
    double minimum = 0;
    double maximum = 0;
    double step = 0;
};

/// What a view is, as a screen reader announces it. Every member has its default, so that any may be left
/// out.
struct Accessible {
    AccessibleRole role = AccessibleRole::None;
    std::string name {};
    std::string description {};
    /// The value in words, with its unit.
    std::string value {};
    std::optional<AccessibleRange> range {};
    bool checked = false;
    bool selected = false;
    /// Whether the user may delete it: a row.
    bool deletable = false;
    bool focusable = false;
};

enum class AccessibleChange : std::uint8_t {
    ValueChanged,
    /// The text of a field is about to change, and has changed.
    TextWillChange,
    TextChanged,
    StateChanged,
    /// The view was put into the window.
    Shown,
    /// The view is about to leave the window.
    WillHide,
    AlertShown,
    FocusMoved,
};

/// Tells whoever listens at the view's window; without a window or a listener it does nothing.
void accessibleChanged(UIView&, AccessibleChange);

/// The outermost views in the view that mean something, as they are read: from top to bottom, from left to
/// right. What is hidden is left out, and so is all that lies below a view that covers its superview.
std::vector<UIView*> accessibleChildren(const UIView&);

/// The nearest view around the view that means something; null when there is none.
UIView* accessibleParent(const UIView&);

/// Whether the user can get at the view: it is in the window, not hidden and not covered.
bool isReachable(const UIView&);

/// Whether something lies over the view, or over a view around it, and keeps the user from it.
bool isCovered(const UIView&);

/// The label at the left of a slider names it: one in the same strip of the same superview.
std::string captionOf(const UISlider&);

/// What a button lies over names it: the frontmost label below it in the same superview.
std::string captionOf(const UIButton&);

/// The text of the table row that the view is in; empty outside of rows.
std::string rowTextOf(const UIView&);

/// Whether the label is there to name a slider or a switch, which announces it.
bool namesControl(const UIView& label);

} // namespace brimsound::desktop
