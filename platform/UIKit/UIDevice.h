#pragma once

#include <string>

namespace brimsound {

class UIDevice {
public:
    static const UIDevice& currentDevice();

    /// The operating system's version, for example "9.0.2".
    std::string systemVersion() const;
};

} // namespace brimsound
