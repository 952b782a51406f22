// Methods that are called by name: by a control's target and action, and by the selectors of a specifier
// plist.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

namespace brimsound {

class NSObject;

/// An argument of a call by name: nil, an object (not retained) or a property-list value (not copied).
using Argument = std::variant<std::monostate, NSObject*, const PropertyList*>;

/// One row of a class's method table.
struct Method {
    std::string_view selector;
    /// Calls the method on an object of the table's class. Extra arguments are ignored, missing ones are nil.
    /// A property-list parameter receives nil as null. When another required argument is nil, or an argument
    /// has the wrong type, nothing is called and the result is null. A method without a result returns null.
    PropertyList (*invoke)(NSObject& self, std::span<const Argument> arguments);
};

namespace detail {

/// Only pointer parameters may be omitted.
template <typename Parameter> constexpr bool isOptional = std::is_pointer_v<Parameter>;

template <typename Parameter>
std::remove_pointer_t<std::remove_reference_t<Parameter>>* argumentAs(
    std::span<const Argument> arguments, std::size_t index)
{
    static const PropertyList null;
    const auto argument = index < arguments.size() ? arguments[index] : Argument();
    const auto* const* value = std::get_if<const PropertyList*>(&argument);
    if constexpr (std::is_same_v<Parameter, const PropertyList&>) {
        if (std::holds_alternative<std::monostate>(argument))
            return &null;
        return value ? *value : nullptr;
    } else if constexpr (std::is_same_v<Parameter, const std::string&>) {
        return value ? (*value)->asString() : nullptr;
    } else {
        auto* const* object = std::get_if<NSObject*>(&argument);
        return object ? dynamic_cast<std::remove_pointer_t<std::remove_reference_t<Parameter>>*>(*object)
                      : nullptr;
    }
}

template <typename Parameter> Parameter passed(std::span<const Argument> arguments, std::size_t index)
{
    auto* argument = argumentAs<Parameter>(arguments, index);
    if constexpr (isOptional<Parameter>)
        return argument;
    else
        return *argument;
}

template <auto member, typename Class, typename Result, typename... Parameters, std::size_t... indices>
PropertyList invokeMember(
    NSObject& self, std::span<const Argument> arguments, std::index_sequence<indices...>)
{
    if (!(... && (isOptional<Parameters> || argumentAs<Parameters>(arguments, indices))))
        return {};
    auto& object = static_cast<Class&>(self);
    if constexpr (std::is_void_v<Result>) {
        (object.*member)(passed<Parameters>(arguments, indices)...);
        return {};
    } else {
        return (object.*member)(passed<Parameters>(arguments, indices)...);
    }
}

template <auto member, typename Class, typename Result, typename... Parameters>
Method methodOf(std::string_view selector, Result (Class::*)(Parameters...))
{
    return { selector, [](NSObject& self, std::span<const Argument> arguments) {
                return invokeMember<member, Class, Result, Parameters...>(
                    self, arguments, std::index_sequence_for<Parameters...> {});
            } };
}

} // namespace detail

/// A table row that binds a selector to a member function. Its parameters are references to objects, pointers
/// to objects when they may be omitted, `const PropertyList&`, or `const std::string&` for a property list
/// that holds a string.
template <auto member> Method method(std::string_view selector)
{
    return detail::methodOf<member>(selector, member);
}

} // namespace brimsound
