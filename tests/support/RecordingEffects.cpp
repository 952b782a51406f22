#include "tests/support/RecordingEffects.h"

#include <utility>

namespace brimsound::tests {

RecordingEffects::RecordingEffects()
    : _before(desktop::setEffectObserver(this))
{
}

RecordingEffects::~RecordingEffects()
{
    desktop::setEffectObserver(_before);
}

std::vector<std::string> RecordingEffects::takeTrace()
{
    return std::exchange(_trace, {});
}

void RecordingEffects::messageSent(
    const std::string& name, const PropertyList::Dictionary& userInfo, const NSError* error)
{
    record("message " + name + (error ? " failed" : ""));
    _messages.push_back({ name, userInfo, error ? std::optional(*error) : std::nullopt });
}

void RecordingEffects::notificationPosted(const std::string& name)
{
    record("post " + name);
}

void RecordingEffects::notificationDelivered(std::string_view name)
{
    record("deliver " + std::string(name));
}

void RecordingEffects::fileWritten(const std::string& path)
{
    record("write " + path);
}

void RecordingEffects::lineLogged(std::string_view text)
{
    record("log " + std::string(text));
}

void RecordingEffects::shellCommandRun(const std::string& command)
{
    record("shell " + command);
}

void RecordingEffects::alertShown(const std::string& message, const std::vector<std::string>& buttons)
{
    std::string titles;
    for (const auto& button : buttons)
        titles += (titles.empty() ? "" : ", ") + button;
    record("alert " + message + " (" + titles + ")");
}

void RecordingEffects::mailSent(const desktop::Mail& mail)
{
    record("mail " + mail.subject);
    _mails.push_back(mail);
}

void RecordingEffects::urlOpened(const std::string& url)
{
    record("url " + url);
}

} // namespace brimsound::tests
