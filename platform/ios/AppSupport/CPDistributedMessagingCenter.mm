#include "platform/AppSupport/CPDistributedMessagingCenter.h"

#include "platform/AppSupport/rocketbootstrap.h"
#include "platform/ios/Foundation/NativeError.h"
#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/Foundation/Peer.h"
#include "platform/ios/Foundation/PropertyListConversion.h"

#import <AppSupport/CPDistributedMessagingCenter.h>

extern "C" void rocketbootstrap_distributedmessagingcenter_apply(CPDistributedMessagingCenter* center);

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
    ::rocketbootstrap_distributedmessagingcenter_apply(ios::nativeOf(center));
}

} // namespace brimsound
