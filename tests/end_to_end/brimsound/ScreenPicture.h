#pragma once

#include "tests/support/Screen.h"

#include <QImage>

namespace brimsound::tests {

/// What the screen shows now.
QImage pictureOf(const Screen&);

} // namespace brimsound::tests
