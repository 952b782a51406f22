#include "platform/UIKit/UIScreen.h"

#include "platform/desktop/UIKit/Geometry.h"
#include "platform/desktop/UIKit/Screen.h"
#include "toolkit/window/Window.h"

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
    const auto* window = toolkit::keyWindow();
    return window ? CGRect { {}, desktop::cgSize(window->bounds().size) } : CGRect {};
}

namespace desktop {

void setScreenScale(double scale)
{
    screenScale = scale;
}

} // namespace desktop

} // namespace brimsound
