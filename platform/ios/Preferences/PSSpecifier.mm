#include "platform/Preferences/PSSpecifier.h"

#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/Foundation/Peer.h"
#include "platform/ios/Foundation/PropertyListConversion.h"

#import <Preferences/PSSpecifier.h>

namespace brimsound {

namespace {

::PSSpecifier* nativeOf(const PSSpecifier& specifier)
{
    return ios::nativeOf(specifier);
}

Peer* makePeer(const std::string& name, NSObject& target, const PropertyList::Dictionary& properties)
{
    ios::answerSelectors(target);
    ::PSSpecifier* native = [[::PSSpecifier preferenceSpecifierNamed:ios::nativeText(name)
                                                              target:ios::nativeOf(target)
                                                                 set:NULL
                                                                 get:NULL
                                                              detail:Nil
                                                                cell:PSLinkCell
                                                                edit:Nil] retain];
    for (const auto& [key, value] : properties)
        [native setProperty:ios::nativeValue(value) forKey:ios::nativeText(key)];
    return ios::peer(native);
}

} // namespace

PSSpecifier::PSSpecifier(const std::string& name, NSObject& target, PropertyList::Dictionary properties)
    : PSSpecifier(makePeer(name, target, properties))
{
}

PSSpecifier::PSSpecifier(Peer* peer)
    : NSObject(peer)
{
}

std::string PSSpecifier::name() const
{
    return ios::textOf([nativeOf(*this) name]);
}

NSObject& PSSpecifier::target() const
{
    return *ios::objectOf<NSObject>([nativeOf(*this) target]);
}

PropertyList PSSpecifier::propertyForKey(std::string_view key) const
{
    return ios::valueOf([nativeOf(*this) propertyForKey:ios::nativeText(key)]).value_or(PropertyList());
}

} // namespace brimsound
