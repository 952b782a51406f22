#pragma once

#include <string>

namespace brimsound::desktop {

/// Posts a Darwin notification as another process would: over a new connection, so that this process does not
/// treat it as one of its own. The bus has passed the signal on when this returns. Returns false when the bus
/// cannot be reached.
bool darwinNotifyPost(const std::string& name);

} // namespace brimsound::desktop
