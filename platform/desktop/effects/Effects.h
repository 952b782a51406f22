// What the pane does to the outside world, told to whoever wants to watch: the trace of a script, the tests.
#pragma once

#include "platform/Foundation/NSError.h"
#include "platform/Foundation/PropertyList.h"
#include "platform/desktop/effects/Mail.h"

#include <string>
#include <string_view>
#include <vector>

namespace brimsound::desktop {

/// Told of each effect right after it happened, in order. The base class ignores them all.
class EffectObserver {
public:
    virtual ~EffectObserver() = default;

    /// A message was sent; `error` is null when a reply came.
    virtual void messageSent(
        const std::string& /*name*/, const PropertyList::Dictionary& /*userInfo*/, const NSError* /*error*/)
    {
    }
    /// This process posted a Darwin notification.
    virtual void notificationPosted(const std::string& /*name*/) { }
    /// A Darwin notification reached this process; told before its observers are called.
    virtual void notificationDelivered(std::string_view /*name*/) { }
    /// A file was written whole; `path` is its device path.
    virtual void fileWritten(const std::string& /*path*/) { }
    /// A shell command was asked for.
    virtual void shellCommandRun(const std::string& /*command*/) { }
    /// An alert appeared.
    virtual void alertShown(const std::string& /*message*/, const std::vector<std::string>& /*buttons*/) { }
    /// The user sent a mail off.
    virtual void mailSent(const Mail&) { }
    /// A URL was handed over to be opened.
    virtual void urlOpened(const std::string& /*url*/) { }
    /// A line went to the system log.
    virtual void lineLogged(std::string_view /*text*/) { }
};

/// Whether commands, URLs and mails reach the rest of the machine, or are only told to the observer.
enum class Reach { Everything, ObserverOnly };
Reach reach();
void setReach(Reach);

/// The observer in force; one that ignores everything until another is set.
EffectObserver& effects();
/// Sets the observer, which the caller keeps alive; null sets back the one that ignores everything. Returns
/// the one before, null for the ignoring one.
EffectObserver* setEffectObserver(EffectObserver*);

} // namespace brimsound::desktop
