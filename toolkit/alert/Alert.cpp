#include "toolkit/alert/Alert.h"

#include "toolkit/drawing/Theme.h"
#include "toolkit/window/Window.h"

#include <algorithm>
#include <utility>

namespace brimsound::toolkit {

namespace {

constexpr double widestCard = 270;
/// The smallest distance between a card and the edges of the window, in points.
constexpr double windowMargin = 8;
constexpr double cardRadius = 13;
constexpr double textMargin = 16;
constexpr double textPadding = 20;
constexpr double gapBelowTitle = 4;
constexpr double buttonHeight = 44;

const Font boldFont { theme::boldFont, theme::textSize };
const Font plainFont { {}, theme::textSize };
const Font messageFont { {}, 15 };

double heightOf(const std::string& text, const Font& font, double cardWidth)
{
    return text.empty() ? 0 : heightOfParagraph(text, font, cardWidth - 2 * textMargin);
}

} // namespace

Alert::Alert(std::string title, std::string message, const std::vector<std::string>& buttonTitles)
    : _title(std::move(title))
    , _message(std::move(message))
{
    setCornerRadius(cardRadius);
    setClips(true);
    for (const auto& text : buttonTitles) {
        const auto& font = _buttons.empty() ? boldFont : plainFont;
        const auto press = [this, number = _buttons.size()] { answer(number); };
        _buttons.push_back(make<TextButton>(text, font, press));
        add(*_buttons.back());
    }
}

std::vector<std::string> Alert::buttonTitles() const
{
    std::vector<std::string> titles;
    for (const auto& button : _buttons)
        titles.push_back(button->title());
    return titles;
}

void Alert::answer(std::size_t button)
{
    const auto kept = keep(this);
    // An alert that fades out has been answered already.
    auto* around = window();
    if (!around || around->alerts().current() != this)
        return;
    around->alerts().dismissCurrent();
    if (onAnswer)
        onAnswer(button);
}

Rect Alert::titleRect(double width) const
{
    return makeRect(textMargin, textPadding, width - 2 * textMargin, heightOf(_title, boldFont, width));
}

Rect Alert::messageRect(double width) const
{
    const double top = _title.empty() ? textPadding : titleRect(width).bottom() + gapBelowTitle;
    return makeRect(textMargin, top, width - 2 * textMargin, heightOf(_message, messageFont, width));
}

Size Alert::sizeIn(Size window) const
{
    const auto rows = hasButtonsSideBySide() ? 1 : _buttons.size();
    const double width = std::max(0.0, std::min(widestCard, window.width - 2 * windowMargin));
    const double height
        = messageRect(width).bottom() + textPadding + buttonHeight * static_cast<double>(rows);
    return { width, std::min(height, window.height) };
}

double Alert::topOfButtons() const
{
    double top = frame().size.height;
    for (const auto& button : _buttons)
        top = std::min(top, button->frame().top());
    return top;
}

void Alert::layOut()
{
    const auto [width, height] = frame().size;
    const auto count = _buttons.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (hasButtonsSideBySide()) {
            const double left = static_cast<double>(i) * width / 2;
            _buttons[i]->setFrame(
                inLayoutDirection(makeRect(left, height - buttonHeight, width / 2, buttonHeight)));
        } else {
            // The first button, which cancels, is at the bottom.
            const double row = i == 0 ? 1 : static_cast<double>(count - i) + 1;
            _buttons[i]->setFrame(makeRect(0, height - row * buttonHeight, width, buttonHeight));
        }
    }
}

void Alert::draw(Canvas& canvas) const
{
    const double width = frame().size.width;
    const double line = canvas.hairline();
    canvas.fillRect(bounds(), theme::rowBackground);
    canvas.save();
    canvas.clip(makeRect(0, 0, width, topOfButtons()));
    if (!_title.empty())
        canvas.drawParagraph(_title, titleRect(width), boldFont, theme::text, Alignment::Center);
    canvas.drawParagraph(_message, messageRect(width), messageFont, theme::text, Alignment::Center);
    canvas.restore();
    for (const auto& button : _buttons) {
        const auto place = button->frame();
        canvas.fillRect(makeRect(0, place.top() - line, width, line), theme::separator);
        if (place.left() > 0)
            canvas.fillRect(
                makeRect(place.left() - line, place.top(), line, place.size.height), theme::separator);
    }
}

Accessible Alert::accessible() const
{
    return { .role = role(), .name = _message, .description = _title };
}

} // namespace brimsound::toolkit
