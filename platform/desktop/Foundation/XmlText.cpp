#include "platform/desktop/Foundation/XmlText.h"

#include <glib.h>

#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace brimsound::desktop::xml {

namespace {

using std::chrono::days;
using std::chrono::seconds;
using std::chrono::sys_days;

constexpr sys_days referenceDay { std::chrono::year { 2001 } / 1 / 1 };

constexpr std::string_view blanks = " \t\r\n";

std::string_view withoutBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

} // namespace

std::optional<PropertyList> integerFrom(std::string_view text)
{
    text = withoutBlanks(text);
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+'))
        text.remove_prefix(1);
    int base = 10;
    if (text.starts_with("0x") || text.starts_with("0X")) {
        text.remove_prefix(2);
        base = 16;
    }
    std::uint64_t magnitude = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), magnitude, base);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    if (!isNegative || magnitude == 0)
        return PropertyList(magnitude);
    return PropertyList(PropertyList::WideInteger { -1, ~magnitude + 1 });
}

std::optional<PropertyList> realFrom(const std::string& text)
{
    const std::string number(withoutBlanks(text));
    char* end = nullptr;
    const double value = g_ascii_strtod(number.c_str(), &end);
    if (number.empty() || end != number.c_str() + number.size())
        return std::nullopt;
    return PropertyList(value);
}

std::optional<PropertyList> dateFrom(const std::string& text)
{
    const std::string date(withoutBlanks(text));
    int year = 0;
    unsigned month = 0;
    unsigned day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int length = 0;
    const int read = std::sscanf(
        date.c_str(), "%5d-%2u-%2uT%2d:%2d:%2dZ%n", &year, &month, &day, &hour, &minute, &second, &length);
    const std::chrono::year_month_day calendarDay { std::chrono::year { year }, std::chrono::month { month },
        std::chrono::day { day } };
    if (read != 6 || static_cast<std::size_t>(length) != date.size() || year < 0 || year > 9999
        || !calendarDay.ok())
        return std::nullopt;
    const seconds sinceReference = sys_days { calendarDay } - referenceDay + std::chrono::hours { hour }
        + std::chrono::minutes { minute } + seconds { second };
    return PropertyList(PropertyList::Date { static_cast<double>(sinceReference.count()) });
}

PropertyList::Data dataFrom(std::string& text)
{
    std::size_t length = text.size();
    if (length > 0)
        g_base64_decode_inplace(text.data(), &length);
    const auto* bytes = reinterpret_cast<const std::byte*>(text.data());
    return { bytes, bytes + length };
}

std::optional<std::string> textOf(PropertyList::WideInteger integer)
{
    if (integer.high != 0)
        return std::nullopt;
    return std::to_string(integer.low);
}

std::string textOf(double real)
{
    if (std::isnan(real))
        return "nan";
    if (std::isinf(real))
        return real > 0 ? "+infinity" : "-infinity";
    char text[32];
    const auto [end, error] = std::to_chars(std::begin(text), std::end(text), real);
    return { text, end };
}

std::optional<std::string> textOf(PropertyList::Date date)
{
    constexpr std::chrono::year_month_day first { std::chrono::year { 0 } / 1 / 1 };
    constexpr std::chrono::year_month_day beyond { std::chrono::year { 10'000 } / 1 / 1 };
    const auto sinceReference = std::floor(date.secondsSinceReferenceDate);
    const auto inSeconds = [](const std::chrono::year_month_day& day) {
        return static_cast<double>(seconds { sys_days { day } - referenceDay }.count());
    };
    if (!(sinceReference >= inSeconds(first) && sinceReference < inSeconds(beyond)))
        return std::nullopt;
    const auto moment = referenceDay + seconds { static_cast<std::int64_t>(sinceReference) };
    const auto day = std::chrono::floor<days>(moment);
    const std::chrono::year_month_day calendarDay { day };
    const std::chrono::hh_mm_ss time { moment - day };
    char text[64];
    std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(calendarDay.year()),
        static_cast<unsigned>(calendarDay.month()), static_cast<unsigned>(calendarDay.day()),
        static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
        static_cast<int>(time.seconds().count()));
    return text;
}

std::string textOf(const PropertyList::Data& data)
{
    char* encoded = g_base64_encode(reinterpret_cast<const guchar*>(data.data()), data.size());
    std::string text(encoded);
    g_free(encoded);
    return text;
}

} // namespace brimsound::desktop::xml
