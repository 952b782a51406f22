#include "platform/Preferences/PSSpecifier.h"

#include "platform/desktop/Foundation/Peer.h"

namespace brimsound {

namespace {

struct SpecifierPeer : Peer {
    SpecifierPeer(std::string specifierName, NSObject& specifierTarget, PropertyList::Dictionary all)
        : name(std::move(specifierName))
        , target(specifierTarget)
        , properties(std::move(all))
    {
    }

    const std::string name;
    NSObject& target;
    const PropertyList::Dictionary properties;
};

const SpecifierPeer& peerOf(const PSSpecifier& specifier)
{
    return static_cast<SpecifierPeer&>(specifier.peer());
}

} // namespace

PSSpecifier::PSSpecifier(const std::string& name, NSObject& target, PropertyList::Dictionary properties)
    : PSSpecifier(new SpecifierPeer(name, target, std::move(properties)))
{
}

PSSpecifier::PSSpecifier(Peer* peer)
    : NSObject(peer)
{
}

std::string PSSpecifier::name() const
{
    return peerOf(*this).name;
}

NSObject& PSSpecifier::target() const
{
    return peerOf(*this).target;
}

PropertyList PSSpecifier::propertyForKey(std::string_view key) const
{
    const auto* property = peerOf(*this).properties.find(key);
    return property ? *property : PropertyList();
}

} // namespace brimsound
