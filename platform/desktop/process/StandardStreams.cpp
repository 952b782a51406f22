#include "platform/desktop/process/StandardStreams.h"

#include <fcntl.h>
#include <initializer_list>
#include <unistd.h>

namespace brimsound::desktop {

void openMissingStandardStreams()
{
    // open returns the lowest free number, so each missing stream is replaced in its turn.
    for (const int stream : { STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO }) {
        if (fcntl(stream, F_GETFD) < 0)
            open("/dev/null", O_RDWR);
    }
}

} // namespace brimsound::desktop
