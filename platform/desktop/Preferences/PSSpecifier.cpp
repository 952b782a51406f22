#include "platform/Preferences/PSSpecifier.h"

#include "platform/desktop/Foundation/Peer.h"

namespace brimsound {

namespace {

struct SpecifierObject : toolkit::Object {
    SpecifierObject(std::string specifierName, NSObject& specifierTarget, PropertyList::Dictionary all)
        : name(std::move(specifierName))
        , target(specifierTarget)
        , properties(std::move(all))
    {
    }

    const std::string name;
    NSObject& target;
    const PropertyList::Dictionary properties;
};

const SpecifierObject& native(const PSSpecifier& specifier)
{
    return desktop::nativeOf<SpecifierObject>(specifier);
}

} // namespace

PSSpecifier::PSSpecifier(const std::string& name, NSObject& target, PropertyList::Dictionary properties)
    : PSSpecifier(desktop::peer(new SpecifierObject(name, target, std::move(properties))))
{
}

PSSpecifier::PSSpecifier(Peer* peer)
    : NSObject(peer)
{
}

std::string PSSpecifier::name() const
{
    return native(*this).name;
}

NSObject& PSSpecifier::target() const
{
    return native(*this).target;
}

PropertyList PSSpecifier::propertyForKey(std::string_view key) const
{
    const auto* property = native(*this).properties.find(key);
    return property ? *property : PropertyList();
}

} // namespace brimsound
