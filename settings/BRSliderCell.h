#pragma once

#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UISlider.h"
#include "platform/UIKit/UITableViewCell.h"

#include <memory>
#include <vector>

namespace brimsound {

/// The lists are shared by a pane and its slider cell.
using SliderList = std::vector<RetainPtr<UISlider>>;
using LabelList = std::vector<RetainPtr<UILabel>>;

/// The table row that holds all eleven sliders. It resizes them with the cell. The lists are the pane's own
/// and may still be empty.
class BRSliderCell : public UITableViewCell {
public:
    using UITableViewCell::UITableViewCell;

    const std::shared_ptr<SliderList>& sliders() const { return _sliders; }
    void setSliders(std::shared_ptr<SliderList> sliders) { _sliders = std::move(sliders); }
    const std::shared_ptr<LabelList>& labels() const { return _labels; }
    void setLabels(std::shared_ptr<LabelList> labels) { _labels = std::move(labels); }

    void layoutSubviews() override;

protected:
    ~BRSliderCell() override;

private:
    std::shared_ptr<SliderList> _sliders;
    std::shared_ptr<LabelList> _labels;
};

} // namespace brimsound
