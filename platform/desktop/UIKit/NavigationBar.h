// The bar above a pane.
#pragma once

#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UIView.h"

#include <string>

namespace brimsound::desktop {

/// Shows the pane's title, centred, with a hairline below.
class NavigationBar : public UIView {
public:
    static constexpr double height = 44;

    explicit NavigationBar(const std::string& title);

    void layoutSubviews() override;

private:
    RetainPtr<UILabel> _title;
};

} // namespace brimsound::desktop
