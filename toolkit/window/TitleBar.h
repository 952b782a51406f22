#pragma once

#include "toolkit/text/Label.h"

#include <string>

namespace brimsound::toolkit {

/// The bar at the top of a window, with a centered title and a hairline below.
class TitleBar : public View {
public:
    /// In points.
    static constexpr double height = 44;

    explicit TitleBar(const std::string& title);

    void layOut() override;
    void draw(Canvas&) const override;

private:
    Ref<Label> _title;
};

} // namespace brimsound::toolkit
