#include "toolkit/window/TitleBar.h"

#include "toolkit/drawing/Theme.h"

namespace brimsound::toolkit {

TitleBar::TitleBar(const std::string& title)
    : _title(make<Label>())
{
    _title->setText(title);
    _title->setAlignment(Alignment::Center);
    _title->setFont(Font { theme::boldFont, theme::textSize });
    add(*_title);
}

void TitleBar::layOut()
{
    const auto size = frame().size;
    _title->setFrame(makeRect(theme::rowMargin, 0, size.width - 2 * theme::rowMargin, size.height));
}

void TitleBar::draw(Canvas& canvas) const
{
    const auto size = frame().size;
    canvas.fillRect(bounds(), theme::barBackground);
    canvas.fillRect(
        makeRect(0, size.height - canvas.hairline(), size.width, canvas.hairline()), theme::barSeparator);
}

} // namespace brimsound::toolkit
