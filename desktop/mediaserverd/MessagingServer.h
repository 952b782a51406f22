// The server side of the messaging center.
#pragma once

#include "desktop/mediaserverd/Equalizer.h"

#include <systemd/sd-bus.h>

namespace brimsound::mediaserver {

/// Answers each "equalizer_send" message on the connection: with an empty reply after setting the gains, or
/// with an error when the message is invalid. The equalizer must outlive the connection. Returns a negative
/// errno on failure; -EEXIST when another process serves the center.
int serveMessagingCenter(sd_bus*, Equalizer&);

} // namespace brimsound::mediaserver
