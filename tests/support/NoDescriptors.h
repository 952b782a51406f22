// A process that has run out of descriptors.
#pragma once

#include <sys/resource.h>

namespace brimsound::tests {

/// The process cannot open a file or pipe while it lives.
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
