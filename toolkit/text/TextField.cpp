#include "toolkit/text/TextField.h"

#include "toolkit/drawing/Theme.h"
#include "toolkit/window/Window.h"

#include <algorithm>
#include <utility>

namespace brimsound::toolkit {

namespace {

constexpr double caretWidth = 2;
/// The height of the caret, as a multiple of the font's size.
constexpr double caretHeight = 1.2;
const Font returnFont { theme::boldFont, 15 };
/// The space between the text and the title of the return key, in points.
constexpr double returnGap = 8;
constexpr double pressedAlpha = 0.3;

} // namespace

ReturnKey::ReturnKey(std::string title, std::function<void()> onPress)
    : TitledButton(std::move(title), returnFont, std::move(onPress))
{
}

double ReturnKey::width() const
{
    // One point more, because a title that just fits may be truncated.
    return returnGap + widthOfLine(title(), returnFont) + 1;
}

void ReturnKey::show(bool shows)
{
    if (std::exchange(_shows, shows) != shows)
        setNeedsDisplay();
}

void ReturnKey::draw(Canvas& canvas) const
{
    if (!_shows)
        return;
    const auto [width, height] = frame().size;
    const auto place = inLayoutDirection(makeRect(returnGap, 0, width - returnGap, height));
    const auto color = looksPressed() ? theme::tint.withAlpha(pressedAlpha) : theme::tint;
    canvas.drawLine(title(), place, font(), color, isRightToLeft() ? Alignment::Left : Alignment::Right);
}

TextField::TextField(const Rect& frame)
    : Control(frame)
    , _returnKey(make<ReturnKey>("Return", [this] { confirm(); }))
{
    add(*_returnKey);
}

void TextField::setText(const std::string& text)
{
    if (_text == text)
        return;
    accessibleChanged(AccessibleChange::TextWillChange);
    _text = text;
    setNeedsDisplay();
    accessibleChanged(AccessibleChange::TextChanged);
}

void TextField::setFont(std::optional<Font> font)
{
    if (std::exchange(_font, std::move(font)) != _font)
        setNeedsDisplay();
}

void TextField::setColor(Color color)
{
    _color = color;
    setNeedsDisplay();
}

void TextField::setReturnTitle(const std::string& title)
{
    _returnKey->rename(title);
    setNeedsLayout();
}

void TextField::setEditor(Editor editor)
{
    if (std::exchange(_editor, editor) != editor)
        setNeedsDisplay();
}

void TextField::pressed()
{
    if (auto* around = window())
        around->focus().giveTo(*this);
}

bool TextField::keyPressed(Key key, KeyStroke stroke)
{
    if (key == Key::Return && stroke == KeyStroke::First)
        confirm();
    return true;
}

void TextField::confirm()
{
    const auto kept = keep(this);
    if (onReturn)
        onReturn();
}

Rect TextField::textArea() const
{
    auto area = bounds();
    if (hasKeyboard())
        area.size.width = std::max(0.0, area.size.width - _returnKey->width());
    return inLayoutDirection(area);
}

void TextField::layOut()
{
    const auto [width, height] = frame().size;
    const double keyWidth = std::min(width, _returnKey->width());
    _returnKey->setFrame(inLayoutDirection(makeRect(width - keyWidth, 0, keyWidth, height)));
}

void TextField::keyboardChanged()
{
    _returnKey->show(hasKeyboard());
}

void TextField::draw(Canvas& canvas) const
{
    if (_editor == Editor::Showing || !_font)
        return;
    const auto area = textArea();
    if (!hasKeyboard()) {
        canvas.drawLine(_text, area, *_font, _color, naturalAlignment());
        return;
    }
    const double width = widthOfLine(_text, *_font);
    const double caret = std::min(width, area.size.width - caretWidth);
    const double height = _font->size * caretHeight;
    canvas.save();
    canvas.clip(area);
    // One point more, because a text that just fits may be truncated.
    canvas.drawLine(_text, inLayoutDirection(makeRect(caret - width, 0, width + 1, area.size.height)), *_font,
        _color, naturalAlignment());
    canvas.fillRect(
        inLayoutDirection(makeRect(caret, (area.size.height - height) / 2, caretWidth, height)), theme::tint);
    canvas.restore();
}

Accessible TextField::accessible() const
{
    return { .role = role(), .name = label(), .value = _text };
}

} // namespace brimsound::toolkit
