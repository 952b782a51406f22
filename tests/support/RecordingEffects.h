#pragma once

#include "platform/desktop/effects/Effects.h"

#include <optional>
#include <string>
#include <vector>

namespace brimsound::tests {

/// Records all effects. It is the effect observer until it is destroyed; then the previous one is restored.
class RecordingEffects : public desktop::EffectObserver {
public:
    /// A sent message.
    struct Message {
        std::string name;
        PropertyList::Dictionary userInfo;
        std::optional<NSError> error;
    };

    RecordingEffects();
    RecordingEffects(const RecordingEffects&) = delete;
    RecordingEffects& operator=(const RecordingEffects&) = delete;
    ~RecordingEffects() override;

    /// One line for each effect so far: "message NAME" ("message NAME failed" when no reply came), "post
    /// NAME", "deliver NAME", "write DEVICEPATH", "log TEXT", "shell COMMAND", "alert MESSAGE (BUTTON,
    /// BUTTON)", "mail SUBJECT", "url URL".
    const std::vector<std::string>& trace() const { return _trace; }
    /// Returns the trace and clears it.
    std::vector<std::string> takeTrace();

    /// All mails since the start.
    const std::vector<desktop::Mail>& mails() const { return _mails; }
    /// All messages since the start.
    const std::vector<Message>& messages() const { return _messages; }

    void messageSent(const std::string&, const PropertyList::Dictionary&, const NSError*) override;
    void notificationPosted(const std::string&) override;
    void notificationDelivered(std::string_view) override;
    void fileWritten(const std::string&) override;
    void shellCommandRun(const std::string&) override;
    void alertShown(const std::string&, const std::vector<std::string>&) override;
    void mailSent(const desktop::Mail&) override;
    void urlOpened(const std::string&) override;
    void lineLogged(std::string_view) override;

protected:
    /// For derived observers with further effects.
    void record(std::string line) { _trace.push_back(std::move(line)); }

private:
    EffectObserver* _before;
    std::vector<std::string> _trace;
    std::vector<Message> _messages;
    std::vector<desktop::Mail> _mails;
};

} // namespace brimsound::tests
