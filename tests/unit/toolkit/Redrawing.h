#pragma once

#include "tests/unit/toolkit/Geometry.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

#include <utility>
#include <vector>

namespace brimsound::tests {

/// A window, and the rectangles that it reported for drawing.
class Redrawing : public testing::Test {
protected:
    Redrawing()
    {
        window->onInvalidate = [this](const toolkit::Rect& part) { _parts.push_back(part); };
    }
    ~Redrawing() override { window->onInvalidate = nullptr; }

    /// The rectangles since the last call.
    std::vector<toolkit::Rect> parts() { return std::exchange(_parts, {}); }

    /// The union of the rectangles since the last call.
    toolkit::Rect together()
    {
        toolkit::Rect all;
        for (const auto& part : parts())
            all = unite(all, part);
        return all;
    }

    /// Adds a view to the window, and clears the rectangles.
    template <typename View> toolkit::Ref<View> added(const toolkit::Rect& frame)
    {
        const auto view = toolkit::make<View>();
        view->setFrame(frame);
        window->add(*view);
        parts();
        return view;
    }

    const toolkit::Ref<toolkit::Window> window = toolkit::make<toolkit::Window>(toolkit::Size { 300, 300 });

private:
    std::vector<toolkit::Rect> _parts;
};

} // namespace brimsound::tests
