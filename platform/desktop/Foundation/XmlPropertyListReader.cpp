#include "platform/desktop/Foundation/XmlPropertyListReader.h"

#include "platform/desktop/Foundation/PropertyListBudget.h"
#include "platform/desktop/Foundation/UnicodeText.h"
#include "platform/desktop/Foundation/XmlText.h"

#include <glib.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace brimsound::desktop {

namespace {

/// Builds values from the elements of the markup in the order of the file. Each function returns false for
/// markup that is not valid in a property list.
class Builder {
public:
    bool start(std::string_view element)
    {
        if (!_element.empty())
            return false;
        if (element == "plist")
            return _open.empty() && !std::exchange(_isInPlist, true);
        if (element == "key") {
            if (_open.empty() || !_open.back().isDictionary || _open.back().key)
                return false;
        } else if (!takePlace()) {
            return false;
        }
        if (element == "array" || element == "dict") {
            _open.push_back({ .isDictionary = element == "dict" });
            return true;
        }
        _element = element;
        _text.clear();
        return true;
    }

    bool addText(std::string_view text)
    {
        if (_element.empty())
            return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
        if (!_budget.takeText(text.size()))
            return false;
        _text += text;
        return true;
    }

    bool end(std::string_view element)
    {
        if (element == "plist")
            return true;
        if (element == "array" || element == "dict") {
            auto container = std::move(_open.back());
            _open.pop_back();
            return !container.key && add(valueOf(container));
        }
        _element.clear();
        if (element == "key") {
            _open.back().key = std::move(_text);
            return true;
        }
        auto value = scalar(element);
        return value && add(std::move(*value));
    }

    std::optional<PropertyList> takeRoot() { return std::exchange(_root, std::nullopt); }

private:
    /// A container that is still open.
    struct Container {
        bool isDictionary = false;
        PropertyList::Array elements {};
        std::vector<PropertyListDictionary::Entry> entries {};
        /// The key of the next value.
        std::optional<std::string> key {};
    };

    /// The cost is twice that of the elements, because a growing vector reserves up to twice their size.
    bool takePlace()
    {
        if (_open.empty())
            return !_root;
        if (_open.size() > deepestPropertyList)
            return false;
        if (_open.back().isDictionary)
            return _open.back().key && _budget.takeEntries(2);
        return _budget.takeValues(2);
    }

    bool add(PropertyList value)
    {
        if (_open.empty()) {
            _root = std::move(value);
            return true;
        }
        auto& container = _open.back();
        if (container.isDictionary)
            container.entries.push_back(
                { std::move(*std::exchange(container.key, std::nullopt)), std::move(value) });
        else
            container.elements.push_back(std::move(value));
        return true;
    }

    static PropertyList valueOf(Container& container)
    {
        if (!container.isDictionary)
            return std::move(container.elements);
        // A UID has no element of its own.
        if (container.entries.size() == 1 && container.entries.front().key == "CF$UID") {
            const auto& value = container.entries.front().value;
            if (const auto* integer = value.asInteger(); integer && *integer >= 0)
                return PropertyList::Uid { static_cast<std::uint64_t>(*integer) };
            if (const auto* wide = value.asWideInteger(); wide && wide->high == 0)
                return PropertyList::Uid { wide->low };
        }
        return PropertyListDictionary(std::move(container.entries));
    }

    std::optional<PropertyList> scalar(std::string_view element)
    {
        if (element == "string")
            return PropertyList(std::move(_text));
        if (element == "true" || element == "false")
            return element == "true";
        if (element == "integer")
            return xml::integerFrom(_text);
        if (element == "real")
            return xml::realFrom(_text);
        if (element == "date")
            return xml::dateFrom(_text);
        if (element == "data")
            return xml::dataFrom(_text);
        return std::nullopt;
    }

    bool _isInPlist = false;
    std::vector<Container> _open;
    /// The open element that is not a container, and its text so far.
    std::string _element;
    std::string _text;
    std::optional<PropertyList> _root;
    PropertyListBudget _budget;
};

void stopUnless(bool succeeded, GError** error)
{
    if (!succeeded)
        g_set_error_literal(error, G_MARKUP_ERROR, G_MARKUP_ERROR_INVALID_CONTENT, "no property list");
}

Builder& builder(gpointer data)
{
    return *static_cast<Builder*>(data);
}

constexpr GMarkupParser parser {
    .start_element = [](GMarkupParseContext*, const gchar* name, const gchar**, const gchar**, gpointer data,
                         GError** error) { stopUnless(builder(data).start(name), error); },
    .end_element = [](GMarkupParseContext*, const gchar* name, gpointer data,
                       GError** error) { stopUnless(builder(data).end(name), error); },
    .text =
        [](GMarkupParseContext*, const gchar* text, gsize length, gpointer data, GError** error) {
            stopUnless(builder(data).addText({ text, length }), error);
        },
    .passthrough = nullptr,
    .error = nullptr,
};

bool parse(std::string_view markup, Builder& builder)
{
    const std::unique_ptr<GMarkupParseContext, decltype(&g_markup_parse_context_free)> context(
        g_markup_parse_context_new(&parser, G_MARKUP_TREAT_CDATA_AS_TEXT, &builder, nullptr),
        g_markup_parse_context_free);
    return g_markup_parse_context_parse(
               context.get(), markup.data(), static_cast<gssize>(markup.size()), nullptr)
        && g_markup_parse_context_end_parse(context.get(), nullptr);
}

} // namespace

std::optional<PropertyList> readXmlPropertyList(std::string_view markup)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (markup.starts_with(byteOrderMark))
        markup.remove_prefix(byteOrderMark.size());
    if (markup.empty() || markup.size() > longestMarkupFile)
        return std::nullopt;
    Builder builder;
    const bool parsed = isText(markup) ? parse(markup, builder) : parse(textFrom(markup), builder);
    return parsed ? builder.takeRoot() : std::nullopt;
}

} // namespace brimsound::desktop
