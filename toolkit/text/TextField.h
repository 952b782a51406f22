#pragma once

#include "toolkit/control/Button.h"
#include "toolkit/control/Control.h"

#include <functional>
#include <optional>
#include <string>

namespace brimsound::toolkit {

/// The button at the end of a text field that has the keyboard focus.
class ReturnKey : public TitledButton {
public:
    ReturnKey(std::string title, std::function<void()> onPress);

    /// The width that it takes from the text, in points.
    double width() const;
    void show(bool);
    void rename(std::string title) { setTitle(std::move(title)); }

    void draw(Canvas&) const override;
    bool ignoresTouches() const override { return !_shows; }

private:
    bool _shows = false;
};

/// A field for one line of text. While it has the keyboard focus it draws a caret after the text, and the
/// return key at its end. In a real window, an editor widget then covers the text, with selection,
/// clipboard and input methods.
class TextField : public Control {
public:
    explicit TextField(const Rect& frame = {});

    const std::string& text() const { return _text; }
    void setText(const std::string&);
    /// Appends to the text, where the caret is.
    void type(const std::string& typed) { setText(_text + typed); }
    /// Without a font, the text is not drawn.
    const std::optional<Font>& font() const { return _font; }
    void setFont(std::optional<Font>);
    Color color() const { return _color; }
    void setColor(Color);
    void setReturnTitle(const std::string&);

    /// Called when the return key is pressed, on the keyboard or in the field. The function may remove the
    /// field.
    std::function<void()> onReturn;
    /// Has the effect of the return key.
    void confirm();

    ReturnKey& returnKey() const { return *_returnKey; }

    /// The part of the field with the text, in the field's own coordinates.
    Rect textArea() const;

    enum class Editor {
        None,
        /// It covers the field but is not visible; the field draws its text.
        Hidden,
        Showing,
    };
    /// Called by the program that puts an editor over the field.
    void setEditor(Editor);

    void draw(Canvas&) const override;
    void layOut() override;
    /// None, because the caret shows the focus.
    FocusRing focusRing() const override { return {}; }
    bool takesText() const override { return true; }
    bool keyPressed(Key, KeyStroke) override;
    /// An editor is an element for screen readers itself.
    Role role() const override { return _editor == Editor::None ? Role::TextField : Role::None; }
    Accessible accessible() const override;

protected:
    void pressed() override;
    void keyboardChanged() override;

private:
    std::string _text;
    std::optional<Font> _font = Font {};
    Color _color { 0, 0, 0 };
    Ref<ReturnKey> _returnKey;
    Editor _editor = Editor::None;
};

} // namespace brimsound::toolkit
