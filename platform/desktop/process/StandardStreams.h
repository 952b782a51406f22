#pragma once

namespace brimsound::desktop {

/// Opens /dev/null as standard input, output or error if the process was started without it. Otherwise the
/// first file or socket that it opens would take the place of the stream. Must be called before anything is
/// opened.
void openMissingStandardStreams();

} // namespace brimsound::desktop
