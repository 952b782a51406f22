#include "art/gallery/Caption.h"

namespace brimsound::desktop {

RetainPtr<UILabel> caption(const std::string& text, const CGRect& frame)
{
    auto label = make<UILabel>(frame);
    label->setText(text);
    label->setFont(UIFont::systemFontOfSize(13));
    label->setTextColor(UIColor::colorWithWhiteAlpha(0.3, 1));
    return label;
}

} // namespace brimsound::desktop
