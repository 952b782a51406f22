#include "platform/UIKit/UIScreen.h"

#include "platform/desktop/UIKit/Screen.h"
#include "platform/desktop/UIKit/Window.h"

namespace brimsound {

namespace {

double screenScale = 2;

} // namespace

const UIScreen& UIScreen::mainScreen()
{
    static const UIScreen screen;
    return screen;
}

CGFloat UIScreen::scale() const
{
    return screenScale;
}

CGRect UIScreen::bounds() const
{
    const auto* window = desktop::keyWindow();
    return window ? CGRect { {}, window->bounds().size } : CGRect {};
}

namespace desktop {

void setScreenScale(double scale)
{
    screenScale = scale;
}

} // namespace desktop

} // namespace brimsound
