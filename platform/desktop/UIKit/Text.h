// Measuring text.
#pragma once

#include "platform/UIKit/UIFont.h"

#include <string>

namespace brimsound::desktop {

/// The width in points of one line of text.
double widthOfLine(const std::string& text, const UIFont&);

/// The height in points of a paragraph that is broken into lines at the width.
double heightOfParagraph(const std::string& text, const UIFont&, double width);

/// Whether the machine has a font to show for the PostScript name.
bool fontExists(const std::string& postScriptName);

} // namespace brimsound::desktop
