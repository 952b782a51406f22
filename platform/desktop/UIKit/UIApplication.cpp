#include "platform/UIKit/UIApplication.h"

#include "platform/desktop/UIKit/UrlOpener.h"
#include "platform/desktop/effects/Effects.h"

namespace brimsound {

using desktop::Reach;

UIApplication& UIApplication::sharedApplication()
{
    static UIApplication application;
    return application;
}

bool UIApplication::canOpenURL(const std::string& url) const
{
    return desktop::hasProgramFor(url);
}

bool UIApplication::openURL(const std::string& url)
{
    if (desktop::reach() == Reach::Everything && !desktop::openWithProgram(url))
        return false;
    desktop::effects().urlOpened(url);
    return true;
}

} // namespace brimsound
