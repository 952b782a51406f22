// Who is asked about what is done in a text field.
#pragma once

namespace brimsound {

class UITextField;

class UITextFieldDelegate {
public:
    virtual ~UITextFieldDelegate() = default;

    /// The return key was pressed in the field. Whether the field shall do what it does by itself.
    virtual bool textFieldShouldReturn(UITextField*) { return true; }
};

} // namespace brimsound
