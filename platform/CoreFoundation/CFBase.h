#pragma once

namespace brimsound {

/// The version of the system's Core Foundation. It identifies the system release. A constant on a device; a
/// variable on the desktop, so that both sides of a version check can be run.
extern double kCFCoreFoundationVersionNumber;

} // namespace brimsound
