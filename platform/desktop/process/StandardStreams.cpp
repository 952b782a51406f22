#include "platform/desktop/process/StandardStreams.h"

#include <fcntl.h>
#include <initializer_list>
#include <unistd.h>

namespace brimsound::desktop {

void openMissingStandardStreams()
{
    // The lowest free number is given out, so each missing one is filled in its turn.
    for (const int stream : { STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO }) {
        if (fcntl(stream, F_GETFD) < 0)
            open("/dev/null", O_RDWR);
    }
}

} // namespace brimsound::desktop
