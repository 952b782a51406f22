#include "platform/ios/Foundation/PropertyListConversion.h"

#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/Foundation/NativeUid.h"

#include <string_view>
#include <vector>

namespace brimsound::ios {

namespace {

/// The maximum nesting depth. The conversion is recursive, so each level takes stack space.
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
        if (const auto uid = uidOf(native))
            return *uid;
        if ([native isKindOfClass:[::NSArray class]])
            return elementsOf(native, [native count], depth);
        if ([native isKindOfClass:[::NSSet class]]) {
            auto elements = elementsOf(native, [native count], depth);
            if (!elements)
                return std::nullopt;
            return PropertyList::Set { std::move(*elements) };
        }
        if ([native isKindOfClass:[::NSDictionary class]])
            return dictionary(native, depth);
        if ([native isKindOfClass:[::NSData class]]) {
            const auto* bytes = static_cast<const std::byte*>([native bytes]);
            return PropertyList::Data(bytes, bytes + [native length]);
        }
        if ([native isKindOfClass:[::NSDate class]])
            return PropertyList::Date { [native timeIntervalSinceReferenceDate] };
        if ([native isKindOfClass:[::NSNull class]])
            return PropertyList::NullObject {};
        return std::nullopt;
    }

private:
    static PropertyList number(::NSNumber* native)
    {
        // The two booleans are objects distinct from the numbers 0 and 1.
        if (native == [::NSNumber numberWithBool:YES])
            return true;
        if (native == [::NSNumber numberWithBool:NO])
            return false;
        const std::string_view type = [native objCType];
        if (type == @encode(float))
            return [native floatValue];
        if (type == @encode(double))
            return [native doubleValue];
        const std::int64_t value = [native longLongValue];
        // A positive number that does not fit into 64 signed bits is returned as a negative one.
        if (value < 0 && [native compare:[::NSNumber numberWithInt:0]] == NSOrderedDescending)
            return std::uint64_t { [native unsignedLongLongValue] };
        return value;
    }

    std::optional<PropertyList::Array> elementsOf(id native, std::size_t count, int depth)
    {
        PropertyList::Array elements;
        elements.reserve(count);
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
        std::vector<PropertyListDictionary::Entry> entries;
        entries.reserve([native count]);
        for (id key in native) {
            auto value = read([native objectForKey:key], depth + 1);
            if (!value || ![key isKindOfClass:[::NSString class]])
                return std::nullopt;
            entries.push_back({ textOf(key), std::move(*value) });
        }
        return PropertyListDictionary(std::move(entries));
    }

    std::size_t _left;
};

id orNull(id native)
{
    return native ? native : [::NSNull null];
}

::NSArray* nativeElements(const PropertyList::Array& elements)
{
    ::NSMutableArray* native = [::NSMutableArray arrayWithCapacity:elements.size()];
    for (const auto& element : elements)
        [native addObject:orNull(nativeValue(element))];
    return native;
}

/// Nil for an integer that exceeds 64 bits, for which there is no public class.
::NSNumber* nativeNumber(PropertyList::WideInteger integer)
{
    return integer.high == 0 ? [::NSNumber numberWithUnsignedLongLong:integer.low] : nil;
}

::NSNumber* nativeReal(const PropertyList& value)
{
    // In a file a single takes four bytes, a double eight.
    return value.isSingleReal() ? [::NSNumber numberWithFloat:value.floatValue()]
                                : [::NSNumber numberWithDouble:value.doubleValue()];
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
    if (const auto* wide = value.asWideInteger())
        return nativeNumber(*wide);
    if (value.asReal())
        return nativeReal(value);
    if (const auto* string = value.asString())
        return nativeText(*string);
    if (const auto* data = value.asData())
        return [::NSData dataWithBytes:data->data() length:data->size()];
    if (const auto* date = value.asDate())
        return [::NSDate dateWithTimeIntervalSinceReferenceDate:date->secondsSinceReferenceDate];
    if (const auto* dictionary = value.asDictionary())
        return nativeDictionary(*dictionary);
    if (const auto* array = value.asArray())
        return nativeElements(*array);
    if (const auto* set = value.asSet())
        return [::NSSet setWithArray:nativeElements(set->elements)];
    if (const auto* uid = value.asUid())
        return nativeUid(*uid);
    if (value.asNullObject())
        return [::NSNull null];
    return nil;
}

} // namespace brimsound::ios
