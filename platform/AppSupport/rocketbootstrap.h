// The opening between the Settings app's sandbox and services of other processes.
#pragma once

namespace brimsound {

class CPDistributedMessagingCenter;

/// Lets messages through this center reach servers outside the sandbox. On the desktop, where there is none,
/// it has nothing to do.
void rocketbootstrap_distributedmessagingcenter_apply(CPDistributedMessagingCenter&);

} // namespace brimsound
