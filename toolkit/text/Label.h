#pragma once

#include "toolkit/view/View.h"

#include <optional>
#include <string>

namespace brimsound::toolkit {

class Label : public View {
public:
    using View::View;

    const std::string& text() const { return _text; }
    void setText(std::string);
    /// Without a font, the text is not drawn.
    const std::optional<Font>& font() const { return _font; }
    void setFont(std::optional<Font>);
    Color color() const { return _color; }
    void setColor(Color);
    /// The text's color while the label is highlighted; nothing for the same color.
    std::optional<Color> highlightedColor() const { return _highlightedColor; }
    void setHighlightedColor(std::optional<Color>);
    bool isHighlighted() const { return _highlighted; }
    void setHighlighted(bool);
    /// Nothing (the initial value) for the natural one.
    std::optional<Alignment> alignment() const { return _alignment; }
    void setAlignment(std::optional<Alignment>);

    /// Called when the text or the font changed, because the label may need another size.
    std::function<void()> onChange;

    void draw(Canvas&) const override;
    Role role() const override { return isRead() && !_text.empty() ? Role::Label : Role::None; }
    Accessible accessible() const override { return { .role = role(), .name = _text }; }

private:
    Color shownColor() const { return _highlighted ? _highlightedColor.value_or(_color) : _color; }
    template <typename Value> void setLook(Value& member, Value value);
    void changed() const;

    std::string _text;
    std::optional<Font> _font = Font {};
    Color _color { 0, 0, 0 };
    std::optional<Color> _highlightedColor;
    bool _highlighted = false;
    std::optional<Alignment> _alignment;
};

} // namespace brimsound::toolkit
