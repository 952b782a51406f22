#pragma once

#include "tests/support/EnvironmentVariable.h"

#include <QGuiApplication>

#include <array>
#include <string>

namespace brimsound::tests {

/// Keeps Qt running without a display; it measures text.
class RunningQt {
    int _count = 1;
    std::string _name = "brimsound";
    std::array<char*, 2> _arguments { _name.data(), nullptr };
    EnvironmentVariable _platform { "QT_QPA_PLATFORM", "offscreen" };
    QGuiApplication _application { _count, _arguments.data() };
};

} // namespace brimsound::tests
