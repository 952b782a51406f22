#include "platform/Foundation/NSError.h"

namespace brimsound {

std::string descriptionOf(const NSError& error)
{
    return "Error Domain=" + error.domain + " Code=" + std::to_string(error.code) + " \""
        + error.localizedDescription + '"';
}

} // namespace brimsound
