#include "desktop/render/Progress.h"

#include <algorithm>
#include <cstdio>
#include <unistd.h>

namespace brimsound::render {

Progress::Progress(std::int64_t total)
    : _shown(isatty(STDERR_FILENO) != 0)
    , _total(std::max<std::int64_t>(total, 1))
{
}

Progress::~Progress()
{
    if (_percent >= 0)
        std::fputs("\r\033[K", stderr);
}

void Progress::update(std::int64_t done)
{
    const int percent
        = static_cast<int>(100 * std::min(1.0, static_cast<double>(done) / static_cast<double>(_total)));
    if (!_shown || percent == _percent)
        return;
    _percent = percent;
    std::fprintf(stderr, "\rRendering %3d %%", percent);
}

} // namespace brimsound::render
