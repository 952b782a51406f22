#include "platform/desktop/bus/Interfaces.h"

#include <algorithm>

namespace brimsound::desktop {

std::string messagingCenterPath(std::string centerName)
{
    std::replace(centerName.begin(), centerName.end(), '.', '/');
    return "/" + centerName;
}

} // namespace brimsound::desktop
