#include "settings/BRSliderCell.h"

#include "settings/SliderRow.h"

namespace brimsound {

BRSliderCell::~BRSliderCell()
{
    setSliders(nullptr);
    setLabels(nullptr);
}

void BRSliderCell::layoutSubviews()
{
    UITableViewCell::layoutSubviews();
    if (!_sliders)
        return;
    const auto width = sliderWidth(contentView().frame().size.width);
    for (const auto& slider : *_sliders) {
        const auto frame = slider->frame();
        slider->setFrame(CGRectMake(sliderX, frame.origin.y, width, frame.size.height));
    }
}

} // namespace brimsound
