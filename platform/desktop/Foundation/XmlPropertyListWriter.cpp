#include "platform/desktop/Foundation/XmlPropertyListWriter.h"

#include "platform/desktop/Foundation/PropertyListBudget.h"
#include "platform/desktop/Foundation/UnicodeText.h"
#include "platform/desktop/Foundation/XmlPropertyListReader.h"
#include "platform/desktop/Foundation/XmlText.h"

#include <glib.h>

#include <string>

namespace brimsound::desktop {

namespace {

class Writer {
public:
    bool append(const PropertyList& value, std::size_t depth)
    {
        if (depth > deepestPropertyList)
            return false;
        if (const auto* boolean = value.asBoolean())
            return appendEmpty(*boolean ? "true" : "false");
        if (const auto* integer = value.asInteger())
            return appendElement("integer", std::to_string(*integer));
        if (const auto* wide = value.asWideInteger())
            return appendElement("integer", xml::textOf(*wide));
        if (const auto* real = value.asReal())
            return appendElement("real", xml::textOf(*real));
        if (const auto* string = value.asString())
            return appendElement("string", escaped(*string));
        if (const auto* data = value.asData())
            return appendElement("data", xml::textOf(*data));
        if (const auto* date = value.asDate())
            return appendElement("date", xml::textOf(*date));
        if (const auto* uid = value.asUid())
            return appendUid(*uid);
        if (const auto* array = value.asArray())
            return appendArray(*array, depth);
        if (const auto* dictionary = value.asDictionary())
            return appendDictionary(*dictionary, depth);
        return false;
    }

    std::string markup = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                         "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                         "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                         "<plist version=\"1.0\">\n";

private:
    bool appendEmpty(const char* element)
    {
        markup += std::string("<") + element + "/>\n";
        return true;
    }

    bool appendElement(const std::string& element, const std::optional<std::string>& text)
    {
        if (!text)
            return false;
        markup += "<" + element + ">" + *text + "</" + element + ">\n";
        return true;
    }

    bool appendUid(PropertyList::Uid uid)
    {
        markup
            += "<dict>\n<key>CF$UID</key>\n<integer>" + std::to_string(uid.value) + "</integer>\n</dict>\n";
        return true;
    }

    bool appendArray(const PropertyList::Array& array, std::size_t depth)
    {
        markup += "<array>\n";
        for (const auto& element : array) {
            if (!append(element, depth + 1))
                return false;
        }
        markup += "</array>\n";
        return true;
    }

    bool appendDictionary(const PropertyList::Dictionary& dictionary, std::size_t depth)
    {
        markup += "<dict>\n";
        for (const auto& [key, value] : dictionary) {
            if (!appendElement("key", escaped(key)) || !append(value, depth + 1))
                return false;
        }
        markup += "</dict>\n";
        return true;
    }

    static std::optional<std::string> escaped(const std::string& text)
    {
        if (!isText(text))
            return std::nullopt;
        char* escape = g_markup_escape_text(text.data(), static_cast<gssize>(text.size()));
        std::string result(escape);
        g_free(escape);
        return result;
    }
};

} // namespace

std::optional<PropertyList::Data> writeXmlPropertyList(const PropertyList& value)
{
    Writer writer;
    if (!writer.append(value, 0))
        return std::nullopt;
    writer.markup += "</plist>\n";
    // Report failure and keep the old file rather than write one that could not be read again.
    if (!readXmlPropertyList(writer.markup))
        return std::nullopt;
    const auto* bytes = reinterpret_cast<const std::byte*>(writer.markup.data());
    return PropertyList::Data(bytes, bytes + writer.markup.size());
}

} // namespace brimsound::desktop
