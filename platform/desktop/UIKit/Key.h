// Keys of the keyboard as the views see them.
#pragma once

namespace brimsound::desktop {

enum class Key {
    Tab,
    /// Tab with Shift.
    Backtab,
    Return,
    Space,
    Escape,
    Left,
    Right,
};

} // namespace brimsound::desktop
