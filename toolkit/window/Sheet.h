#pragma once

#include "toolkit/window/Overlay.h"

#include <functional>

namespace brimsound::toolkit {

/// An overlay that shows one view in the size of the window.
class Sheet : public Overlay {
public:
    /// `onEscape` may be empty.
    Sheet(View& content, std::function<void()> onEscape);

    void layOut() override;
    void escape() override;

private:
    const Ref<View> _content;
    const std::function<void()> _onEscape;
};

} // namespace brimsound::toolkit
