// The properties of a view for assistive technology.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace brimsound::toolkit {

enum class Role : std::uint8_t {
    /// Not an element of its own. Its children may be elements.
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

struct ValueRange {
    double value = 0;
    double minimum = 0;
    double maximum = 0;
    /// The change of the value by one step of assistive technology.
    double step = 0;
};

/// A view as a screen reader announces it.
struct Accessible {
    Role role = Role::None;
    std::string name {};
    std::string description {};
    /// The value in words, with its unit.
    std::string value {};
    std::optional<ValueRange> range {};
    bool checked = false;
    bool selected = false;
    /// Whether this is a row that the user can delete.
    bool deletable = false;
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

} // namespace brimsound::toolkit
