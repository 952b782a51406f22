// The pane's effects outside its process. An observer can record them, for the trace of a script or for
// tests.
#pragma once

#include "platform/Foundation/NSError.h"
#include "platform/Foundation/PropertyList.h"
#include "platform/desktop/effects/Mail.h"

#include <string>
#include <string_view>
#include <vector>

namespace brimsound::desktop {

/// Called right after each effect, in order. The base class does nothing.
class EffectObserver {
public:
    virtual ~EffectObserver() = default;

    /// A message was sent; `error` is null when a reply was received.
    virtual void messageSent(
        const std::string& /*name*/, const PropertyList::Dictionary& /*userInfo*/, const NSError* /*error*/)
    {
    }
    /// This process posted a Darwin notification.
    virtual void notificationPosted(const std::string& /*name*/) { }
    /// A Darwin notification reached this process. Called before its observers.
    virtual void notificationDelivered(std::string_view /*name*/) { }
    /// A file was written completely; `path` is its device path.
    virtual void fileWritten(const std::string& /*path*/) { }
    /// The pane asked for a shell command.
    virtual void shellCommandRun(const std::string& /*command*/) { }
    /// An alert appeared.
    virtual void alertShown(const std::string& /*message*/, const std::vector<std::string>& /*buttons*/) { }
    /// The user sent a mail.
    virtual void mailSent(const Mail&) { }
    /// A URL was passed on to be opened.
    virtual void urlOpened(const std::string& /*url*/) { }
    /// A line was written to the system log.
    virtual void lineLogged(std::string_view /*text*/) { }
};

/// Whether commands, URLs and mails are really passed to other programs, or only to the observer.
enum class Reach { Everything, ObserverOnly };
Reach reach();
void setReach(Reach);

/// The current observer; by default one that does nothing.
EffectObserver& effects();
/// Sets the observer, which the caller owns. Null restores the default. Returns the previous observer; null
/// for the default.
EffectObserver* setEffectObserver(EffectObserver*);

} // namespace brimsound::desktop
