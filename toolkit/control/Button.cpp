#include "toolkit/control/Button.h"

#include "toolkit/drawing/Theme.h"

#include <utility>

namespace brimsound::toolkit {

TitledButton::TitledButton(std::string title, Font font, std::function<void()> onPress)
    : _title(std::move(title))
    , _font(std::move(font))
    , _onPress(std::move(onPress))
{
}

void TitledButton::setTitle(std::string title)
{
    _title = std::move(title);
    setNeedsDisplay();
}

void TitledButton::pressed()
{
    // The action may remove the button.
    const auto kept = keep(this);
    if (_onPress)
        _onPress();
}

Accessible TitledButton::accessible() const
{
    return { .role = role(), .name = _title };
}

void TextButton::draw(Canvas& canvas) const
{
    if (looksPressed())
        canvas.fillRect(bounds(), theme::rowPressed);
    canvas.drawLine(title(), bounds(), font(), theme::tint, Alignment::Center);
}

} // namespace brimsound::toolkit
