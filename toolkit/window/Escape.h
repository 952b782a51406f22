// What Escape does.
#pragma once

namespace brimsound::toolkit {

class View;

/// Closes what covers everything else in the view, which is a window: an overlay, or a view that has a plain
/// button behind all it shows, which is pressed. False when nothing is in front.
bool closeFront(View&);

} // namespace brimsound::toolkit
