// The server's side of the messaging center.
#pragma once

#include "desktop/mediaserverd/Equalizer.h"

#include <systemd/sd-bus.h>

namespace brimsound::mediaserver {

/// Answers every "equalizer_send" that arrives on the connection from now on: with an empty reply after the
/// gains were set, with an error when the message is not what it should be. The equalizer outlives the
/// connection. A negative errno on failure; -EEXIST when another process serves the center.
int serveMessagingCenter(sd_bus*, Equalizer&);

} // namespace brimsound::mediaserver
