#include "settings/Log.h"

#include "platform/Foundation/NSLog.h"

namespace brimsound {

void logLine(const std::string& text)
{
    NSLog("Brimsound: " + text);
}

} // namespace brimsound
