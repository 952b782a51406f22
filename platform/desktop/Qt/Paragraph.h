// Text broken into lines.
#pragma once

#include "toolkit/drawing/Canvas.h"

#include <QTextLayout>

#include <memory>
#include <string>

namespace brimsound::desktop {

/// The text, broken into lines of at most that width in points. Qt's own drawing of such texts indents lines
/// that are read from right to left by the space at which they were broken.
std::unique_ptr<QTextLayout> paragraph(
    const std::string& text, const toolkit::Font&, double width, toolkit::Alignment);

/// The alignment in a layout, where left and right would otherwise be the start and the end of the text's own
/// direction.
Qt::Alignment qAlignment(toolkit::Alignment);

} // namespace brimsound::desktop
