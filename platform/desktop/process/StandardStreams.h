// The three streams that a process is started with.
#pragma once

namespace brimsound::desktop {

/// Puts /dev/null where the process was started without standard input, output or error. Otherwise the first
/// file or socket that it opens would be taken for the stream. To be called before anything is opened.
void openMissingStandardStreams();

} // namespace brimsound::desktop
