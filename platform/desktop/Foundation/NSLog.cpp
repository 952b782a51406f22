#include "platform/Foundation/NSLog.h"

#include "platform/desktop/effects/Effects.h"

#include <cstdio>
#include <string>
#include <syslog.h>

namespace brimsound {

void NSLog(std::string_view text)
{
    std::string line(text);
    if (!line.ends_with('\n'))
        line += '\n';
    syslog(LOG_USER | LOG_NOTICE, "%s", line.c_str());
    std::fputs(line.c_str(), stderr);
    desktop::effects().lineLogged(text);
}

} // namespace brimsound
