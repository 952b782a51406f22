#include "platform/AppSupport/CPDistributedMessagingCenter.h"

#include "platform/AppSupport/rocketbootstrap.h"
#include "platform/ios/Foundation/NativeError.h"
#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/Foundation/Peer.h"
#include "platform/ios/Foundation/PropertyListConversion.h"

#import <AppSupport/CPDistributedMessagingCenter.h>

// Null when its library, which has a package of its own, is not installed. The pane opens all the same.
extern "C" __attribute__((weak)) void rocketbootstrap_distributedmessagingcenter_apply(
    CPDistributedMessagingCenter* center);

namespace brimsound {

CPDistributedMessagingCenter::CPDistributedMessagingCenter(Peer* peer)
    : NSObject(peer)
{
}

RetainPtr<CPDistributedMessagingCenter> CPDistributedMessagingCenter::centerNamed(const std::string& name)
{
    return ios::retainedObjectOf<CPDistributedMessagingCenter>(
        [::CPDistributedMessagingCenter centerNamed:ios::nativeText(name)]);
}

PropertyList::Dictionary CPDistributedMessagingCenter::sendMessageAndReceiveReplyName(
    const std::string& name, const PropertyList::Dictionary& userInfo, std::optional<NSError>& error)
{
    ::NSError* nativeError = nil;
    ::NSDictionary* reply =
        [ios::nativeOf(*this) sendMessageAndReceiveReplyName:ios::nativeText(name)
                                                    userInfo:ios::nativeDictionary(userInfo)
                                                       error:&nativeError];
    if (nativeError) {
        error = ios::errorOf(nativeError);
        return {};
    }
    const auto value = ios::valueOf(reply);
    const auto* dictionary = value ? value->asDictionary() : nullptr;
    return dictionary ? *dictionary : PropertyList::Dictionary();
}

void rocketbootstrap_distributedmessagingcenter_apply(CPDistributedMessagingCenter& center)
{
    if (::rocketbootstrap_distributedmessagingcenter_apply)
        ::rocketbootstrap_distributedmessagingcenter_apply(ios::nativeOf(center));
}

} // namespace brimsound
