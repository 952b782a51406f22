// The names of this system's interfaces on the session bus.
#pragma once

#include <string>

namespace brimsound::desktop {

/// Darwin notifications: each post is a broadcast signal with the notification's name.
inline constexpr auto notificationsPath = "/com/quorvix/brimsound";
inline constexpr auto notificationsInterface = "com.quorvix.brimsound.DarwinNotify";
inline constexpr auto postedSignal = "Posted";

/// Messaging centers: each owns its name on the bus and has one object with one method. The method takes the
/// message's name and user info ("sa{sv}") and returns the reply ("a{sv}").
inline constexpr auto messagingCenterInterface = "com.quorvix.brimsound.MessagingCenter";
inline constexpr auto sendMessageMethod = "SendMessageAndReceiveReply";
/// The object path of the center of that name.
std::string messagingCenterPath(std::string centerName);

} // namespace brimsound::desktop
