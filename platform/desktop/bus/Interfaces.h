// What this system's processes call each other by on the session bus.
#pragma once

#include <string>

namespace brimsound::desktop {

/// Darwin notifications: each post is one broadcast signal with the notification's name.
inline constexpr auto notificationsPath = "/com/quorvix/brimsound";
inline constexpr auto notificationsInterface = "com.quorvix.brimsound.DarwinNotify";
inline constexpr auto postedSignal = "Posted";

/// Messaging centers: each owns its name on the bus and has one object with one method, which takes the
/// message's name and user info ("sa{sv}") and gives the reply ("a{sv}").
inline constexpr auto messagingCenterInterface = "com.quorvix.brimsound.MessagingCenter";
inline constexpr auto sendMessageMethod = "SendMessageAndReceiveReply";
/// The object of the center of that name.
std::string messagingCenterPath(std::string centerName);

} // namespace brimsound::desktop
