#include "platform/desktop/UIKit/NavigationBar.h"

#include "platform/desktop/UIKit/Theme.h"
#include "platform/desktop/UIKit/ViewPeer.h"

namespace brimsound::desktop {

namespace {

struct BarPeer : ViewPeer {
    void draw(Canvas& canvas) const override
    {
        const auto [width, barHeight] = boundsOf(*this).size;
        canvas.fillRect(boundsOf(*this), theme::barBackground);
        canvas.fillRect(
            CGRectMake(0, barHeight - canvas.hairline(), width, canvas.hairline()), theme::barSeparator);
    }
};

} // namespace

NavigationBar::NavigationBar(const std::string& title)
    : UIView(new BarPeer)
    , _title(make<UILabel>())
{
    _title->setText(title);
    _title->setTextAlignment(NSTextAlignment::Center);
    if (auto font = UIFont::fontWithNameSize("HelveticaNeue-SemiBold", theme::textSize))
        _title->setFont(font);
    addSubview(*_title);
}

void NavigationBar::layoutSubviews()
{
    const auto size = bounds().size;
    _title->setFrame(CGRectMake(theme::rowMargin, 0, size.width - 2 * theme::rowMargin, size.height));
}

} // namespace brimsound::desktop
