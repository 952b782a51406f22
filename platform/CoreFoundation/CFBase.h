// The running system's Core Foundation.
#pragma once

namespace brimsound {

/// The version of the system's Core Foundation, which tells one system release from another. A constant on a
/// device; on the desktop a variable, so that either side of a version check can be run.
extern double kCFCoreFoundationVersionNumber;

} // namespace brimsound
