// The trace of a script: one line with a JSON object for each effect.
#pragma once

#include "platform/desktop/effects/Effects.h"

#include <nlohmann/json.hpp>

#include <cstdio>

namespace brimsound::desktop {

using Json = nlohmann::ordered_json;

class Trace : public EffectObserver {
public:
    /// Prints to the stream, which must stay open. Flushes each line.
    explicit Trace(std::FILE* stream)
        : _stream(stream)
    {
    }

    /// The error number (errno) of the first line that could not be printed; 0 if there is none.
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

/// The value as JSON. Null and data become null; data does not occur.
Json toJson(const PropertyList&);

} // namespace brimsound::desktop
