#include "desktop/brimsound/Trace.h"

#include "settings/tweak.h"

#include <QByteArray>

#include <cerrno>

namespace brimsound::desktop {

Json toJson(const PropertyList& value)
{
    if (const auto* boolean = value.asBoolean())
        return *boolean;
    if (const auto* integer = value.asInteger())
        return *integer;
    if (const auto* real = value.asReal())
        return *real;
    if (const auto* string = value.asString())
        return *string;
    if (const auto* array = value.asArray()) {
        auto list = Json::array();
        for (const auto& element : *array)
            list.push_back(toJson(element));
        return list;
    }
    if (const auto* dictionary = value.asDictionary()) {
        auto object = Json::object();
        for (const auto& [key, element] : *dictionary)
            object[key] = toJson(element);
        return object;
    }
    return nullptr;
}

void Trace::messageSent(
    const std::string& name, const PropertyList::Dictionary& userInfo, const NSError* error)
{
    const auto* vals = userInfo.find(valsKey);
    print({
        { "effect", "message" },
        { "name", name },
        { "vals", vals ? toJson(*vals) : Json() },
        { "error", error ? Json(error->localizedDescription) : Json() },
    });
}

void Trace::notificationPosted(const std::string& name)
{
    print({ { "effect", "notify" }, { "name", name } });
}

void Trace::notificationDelivered(std::string_view name)
{
    print({ { "effect", "delivered" }, { "name", name } });
}

void Trace::fileWritten(const std::string& path)
{
    print({ { "effect", "write" }, { "path", path } });
}

void Trace::shellCommandRun(const std::string& command)
{
    print({ { "effect", "shell" }, { "command", command } });
}

void Trace::alertShown(const std::string& message, const std::vector<std::string>& buttons)
{
    print({ { "effect", "alert" }, { "message", message }, { "buttons", buttons } });
}

void Trace::mailSent(const Mail& mail)
{
    auto attachments = Json::array();
    for (const auto& attachment : mail.attachments) {
        const auto bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(attachment.data.data()),
            static_cast<qsizetype>(attachment.data.size()));
        attachments.push_back({
            { "name", attachment.fileName },
            { "type", attachment.mimeType },
            { "base64", bytes.toBase64().toStdString() },
        });
    }
    print({
        { "effect", "mail" },
        { "subject", mail.subject },
        { "to", mail.to },
        { "attachments", attachments },
    });
}

void Trace::urlOpened(const std::string& url)
{
    print({ { "effect", "url" }, { "url", url } });
}

void Trace::lineLogged(std::string_view text)
{
    print({ { "effect", "log" }, { "text", text } });
}

void Trace::stateAsked(const Json& state)
{
    Json line { { "effect", "state" } };
    line.update(state);
    print(line);
}

void Trace::print(const Json& line)
{
    // Names may contain invalid UTF-8, which must not end the trace.
    const auto text = line.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
    const auto written = std::fwrite(text.data(), 1, text.size(), _stream);
    if ((written != text.size() || std::fflush(_stream) != 0) && _failure == 0)
        _failure = errno;
}

} // namespace brimsound::desktop
