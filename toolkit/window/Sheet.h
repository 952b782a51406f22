// Views that are shown over a whole window.
#pragma once

#include "toolkit/window/Overlay.h"

#include <functional>

namespace brimsound::toolkit {

/// Keeps one view as large as the window.
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
