#pragma once

namespace brimsound::toolkit {

class View;

/// Closes the view that covers the rest of the window: calls escape() of an overlay; in another view, presses
/// the invisible Button that fills it. Returns false when nothing covers the window.
bool closeFront(View&);

} // namespace brimsound::toolkit
