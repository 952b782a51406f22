#include "toolkit/text/Label.h"

#include <utility>

namespace brimsound::toolkit {

void Label::setText(std::string text)
{
    if (std::exchange(_text, std::move(text)) != _text)
        changed();
}

void Label::setFont(std::optional<Font> font)
{
    if (std::exchange(_font, std::move(font)) != _font)
        changed();
}

void Label::changed() const
{
    setNeedsDisplay();
    if (onChange)
        onChange();
}

/// Redraws the text when its visible color changed.
template <typename Value> void Label::setLook(Value& member, Value value)
{
    const auto before = shownColor();
    member = std::move(value);
    if (shownColor() != before)
        setNeedsDisplay();
}

void Label::setColor(Color color)
{
    setLook(_color, color);
}

void Label::setHighlightedColor(std::optional<Color> color)
{
    setLook(_highlightedColor, color);
}

void Label::setHighlighted(bool highlighted)
{
    setLook(_highlighted, highlighted);
}

void Label::setAlignment(std::optional<Alignment> alignment)
{
    if (std::exchange(_alignment, alignment) != alignment)
        setNeedsDisplay();
}

void Label::draw(Canvas& canvas) const
{
    if (!_text.empty() && _font)
        canvas.drawLine(_text, bounds(), *_font, shownColor(), _alignment ? *_alignment : naturalAlignment());
}

} // namespace brimsound::toolkit
