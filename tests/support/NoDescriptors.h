#pragma once

#include <sys/resource.h>

namespace brimsound::tests {

/// While this object exists, the process cannot open a file or a pipe.
class NoDescriptors {
public:
    NoDescriptors()
    {
        getrlimit(RLIMIT_NOFILE, &_before);
        auto none = _before;
        none.rlim_cur = 0;
        setrlimit(RLIMIT_NOFILE, &none);
    }
    NoDescriptors(const NoDescriptors&) = delete;
    NoDescriptors& operator=(const NoDescriptors&) = delete;
    ~NoDescriptors() { setrlimit(RLIMIT_NOFILE, &_before); }

private:
    rlimit _before {};
};

} // namespace brimsound::tests
