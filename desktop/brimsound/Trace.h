// The trace of a script: one JSON object a line for every effect.
#pragma once

#include "platform/desktop/effects/Effects.h"

#include <nlohmann/json.hpp>

#include <cstdio>

namespace brimsound::desktop {

using Json = nlohmann::ordered_json;

class Trace : public EffectObserver {
public:
    /// Prints to the stream, which the caller keeps open; each line is flushed.
    explicit Trace(std::FILE* stream)
        : _stream(stream)
    {
    }

    /// Why the first line that is missing could not be printed, as errno tells; 0 while none is.
    int failure() const { return _failure; }

    void messageSent(
        const std::string& name, const PropertyList::Dictionary& userInfo, const NSError* error) override;
    void notificationPosted(const std::string& name) override;
    void notificationDelivered(std::string_view name) override;
    void fileWritten(const std::string& path) override;
    void shellCommandRun(const std::string& command) override;
    void alertShown(const std::string& message, const std::vector<std::string>& buttons) override;
    void mailSent(const Mail&) override;
    void urlOpened(const std::string& url) override;
    void lineLogged(std::string_view text) override;
    void stateAsked(const Json& state);

private:
    void print(const Json&);

    std::FILE* _stream;
    int _failure = 0;
};

/// The value as JSON: data as base64 does not occur and becomes null, as does null itself.
Json toJson(const PropertyList&);

} // namespace brimsound::desktop
