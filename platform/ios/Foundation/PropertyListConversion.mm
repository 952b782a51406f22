#include "platform/ios/Foundation/PropertyListConversion.h"

#include "platform/ios/Foundation/NativeText.h"

#include <string_view>

namespace brimsound::ios {

namespace {

/// As deep as property lists may be nested; each level takes stack while it is walked through.
constexpr int deepest = 512;

class Reader {
public:
    explicit Reader(std::size_t mostValues)
        : _left(mostValues)
    {
    }

    std::optional<PropertyList> read(id native, int depth)
    {
        if (_left == 0 || depth > deepest)
            return std::nullopt;
        --_left;
        if ([native isKindOfClass:[::NSString class]])
            return textOf(native);
        if ([native isKindOfClass:[::NSNumber class]])
            return number(native);
        if ([native isKindOfClass:[::NSArray class]])
            return array(native, depth);
        if ([native isKindOfClass:[::NSDictionary class]])
            return dictionary(native, depth);
        if ([native isKindOfClass:[::NSData class]]) {
            const auto* bytes = static_cast<const std::byte*>([native bytes]);
            return PropertyList::Data(bytes, bytes + [native length]);
        }
        if ([native isKindOfClass:[::NSDate class]])
            return PropertyList::Date { [native timeIntervalSinceReferenceDate] };
        return std::nullopt;
    }

private:
    static PropertyList number(::NSNumber* native)
    {
        // The two booleans are objects of their own, apart from the numbers 0 and 1.
        if (native == [::NSNumber numberWithBool:YES])
            return true;
        if (native == [::NSNumber numberWithBool:NO])
            return false;
        const std::string_view type = [native objCType];
        if (type == @encode(float) || type == @encode(double))
            return [native doubleValue];
        return std::int64_t { [native longLongValue] };
    }

    std::optional<PropertyList> array(::NSArray* native, int depth)
    {
        PropertyList::Array elements;
        elements.reserve([native count]);
        for (id element in native) {
            auto value = read(element, depth + 1);
            if (!value)
                return std::nullopt;
            elements.push_back(std::move(*value));
        }
        return elements;
    }

    std::optional<PropertyList> dictionary(::NSDictionary* native, int depth)
    {
        PropertyList::Dictionary entries;
        for (id key in native) {
            auto value = read([native objectForKey:key], depth + 1);
            if (!value || ![key isKindOfClass:[::NSString class]])
                return std::nullopt;
            entries.set(textOf(key), std::move(*value));
        }
        return entries;
    }

    std::size_t _left;
};

::NSNumber* nativeReal(double real)
{
    // A file takes four bytes for a single, eight for a double.
    const auto single = static_cast<float>(real);
    return static_cast<double>(single) == real ? [::NSNumber numberWithFloat:single]
                                               : [::NSNumber numberWithDouble:real];
}

id orNull(id native)
{
    return native ? native : [::NSNull null];
}

} // namespace

std::optional<PropertyList> valueOf(id native, std::size_t mostValues)
{
    return Reader(mostValues).read(native, 0);
}

::NSDictionary* nativeDictionary(const PropertyList::Dictionary& dictionary)
{
    ::NSMutableDictionary* native = [::NSMutableDictionary dictionaryWithCapacity:dictionary.size()];
    for (const auto& [key, value] : dictionary)
        [native setObject:orNull(nativeValue(value)) forKey:orNull(nativeText(key))];
    return native;
}

id nativeValue(const PropertyList& value)
{
    if (const auto* boolean = value.asBoolean())
        return [::NSNumber numberWithBool:*boolean];
    if (const auto* integer = value.asInteger())
        return [::NSNumber numberWithLongLong:*integer];
    if (const auto* real = value.asReal())
        return nativeReal(*real);
    if (const auto* string = value.asString())
        return nativeText(*string);
    if (const auto* data = value.asData())
        return [::NSData dataWithBytes:data->data() length:data->size()];
    if (const auto* date = value.asDate())
        return [::NSDate dateWithTimeIntervalSinceReferenceDate:date->secondsSinceReferenceDate];
    if (const auto* dictionary = value.asDictionary())
        return nativeDictionary(*dictionary);
    if (const auto* array = value.asArray()) {
        ::NSMutableArray* native = [::NSMutableArray arrayWithCapacity:array->size()];
        for (const auto& element : *array)
            [native addObject:orNull(nativeValue(element))];
        return native;
    }
    return nil;
}

} // namespace brimsound::ios
