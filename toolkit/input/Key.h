// Keyboard input of views.
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
    Zero,
};

/// A key that is held down repeats its stroke.
enum class KeyStroke { First, Repeated };

/// A direction in reading order.
enum class Direction { Previous, Next };

} // namespace brimsound::toolkit
