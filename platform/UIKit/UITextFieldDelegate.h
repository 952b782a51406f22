#pragma once

namespace brimsound {

class UITextField;

class UITextFieldDelegate {
public:
    virtual ~UITextFieldDelegate() = default;

    /// The return key was pressed. Returns whether the field should perform its default action.
    virtual bool textFieldShouldReturn(UITextField*) { return true; }
};

} // namespace brimsound
