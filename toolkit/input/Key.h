// Keys of the keyboard as the views see them.
#pragma once

namespace brimsound::toolkit {

enum class Key {
    Tab,
    /// Tab with Shift.
    Backtab,
    Return,
    Space,
    Escape,
    Left,
    Right,
    Up,
    Down,
    PageUp,
    PageDown,
    Home,
    End,
    Delete,
};

/// A key that is held down strikes again and again.
enum class KeyStroke { First, Repeated };

/// Where the keyboard moves on to, in the order in which the views are read.
enum class Direction { Previous, Next };

} // namespace brimsound::toolkit
