// Fields to type a line into.
#pragma once

#include "toolkit/control/Button.h"
#include "toolkit/control/Control.h"

#include <functional>
#include <optional>
#include <string>

namespace brimsound::toolkit {

/// The key at the right end of a field that has the keyboard; its title is not the desktop's.
class ReturnKey : public TitledButton {
public:
    ReturnKey(std::string title, std::function<void()> onPress);

    /// What it takes beside the text, in points.
    double width() const;
    void show(bool);
    void rename(std::string title) { setTitle(std::move(title)); }

    void draw(Canvas&) const override;
    bool ignoresTouches() const override { return !_shows; }

private:
    bool _shows = false;
};

/// Draws its text and, while it has the keyboard, a caret behind it and the return key at the right end. In a
/// real window an editor of the desktop's own lies over the text then, which knows selections, the clipboard
/// and input methods.
class TextField : public Control {
public:
    explicit TextField(const Rect& frame = {});

    const std::string& text() const { return _text; }
    void setText(const std::string&);
    /// Puts the text where the caret is: at the end.
    void type(const std::string& typed) { setText(_text + typed); }
    /// Nothing shows without a font.
    const std::optional<Font>& font() const { return _font; }
    void setFont(std::optional<Font>);
    Color color() const { return _color; }
    void setColor(Color);
    void setReturnTitle(const std::string&);

    /// The return key was pressed, on the keyboard or in the field. What it does may take the field away.
    std::function<void()> onReturn;
    /// Does what the return key does.
    void confirm();

    ReturnKey& returnKey() const { return *_returnKey; }

    /// The part of the field that the text has, in the field's own coordinates.
    Rect textArea() const;

    enum class Editor {
        None,
        /// Lies over the field, which shows the text all the same.
        Hidden,
        Showing,
    };
    /// Told by whoever lends it an editor.
    void setEditor(Editor);

    void draw(Canvas&) const override;
    void layOut() override;
    /// None: the caret shows it.
    FocusRing focusRing() const override { return {}; }
    bool takesText() const override { return true; }
    bool keyPressed(Key, KeyStroke) override;
    /// An editor speaks for itself.
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
