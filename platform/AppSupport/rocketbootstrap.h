// Access from the Settings app's sandbox to services of other processes.
#pragma once

namespace brimsound {

class CPDistributedMessagingCenter;

/// Allows messages through this center to reach servers outside the sandbox. Does nothing on the desktop,
/// which has no sandbox.
void rocketbootstrap_distributedmessagingcenter_apply(CPDistributedMessagingCenter&);

} // namespace brimsound
