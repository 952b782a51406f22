// Which way a window is laid out.
#pragma once

namespace brimsound::toolkit {

/// The direction in which the language of a window is read. Rows, texts and switches are mirrored from right
/// to left; sliders and images are not.
enum class LayoutDirection { LeftToRight, RightToLeft };

} // namespace brimsound::toolkit
