// The product's class for each native class.
#include "platform/AppSupport/CPDistributedMessagingCenter.h"
#include "platform/MessageUI/MFMailComposeViewController.h"
#include "platform/Preferences/PSSpecifier.h"
#include "platform/UIKit/UIImage.h"
#include "platform/UIKit/UITableView.h"
#include "platform/UIKit/UIViewController.h"
#include "platform/ios/Foundation/Peer.h"

#import <AppSupport/CPDistributedMessagingCenter.h>
#import <MessageUI/MessageUI.h>
#import <Preferences/PSSpecifier.h>
#import <UIKit/UIKit.h>

#include <array>

namespace brimsound::ios {

namespace {

/// Creates the product's object for a native object that the platform made. The peer keeps its reference
/// count.
template <typename Class> NSObject* makeFor(id native)
{
    struct Made : Class {
        explicit Made(Peer* peer)
            : Class(peer)
        {
        }
    };
    return new Made(peer(native));
}

struct NativeClass {
    Class native;
    NSObject* (*make)(id);
};

NSObject* make(id native)
{
    // Subclasses come before their superclasses.
    static const std::array classes {
        NativeClass { [::UITableViewCell class], makeFor<UITableViewCell> },
        NativeClass { [::UITableView class], makeFor<UITableView> },
        NativeClass { [::UILabel class], makeFor<UILabel> },
        NativeClass { [::UIImageView class], makeFor<UIImageView> },
        NativeClass { [::UIView class], makeFor<UIView> },
        NativeClass { [::MFMailComposeViewController class], makeFor<MFMailComposeViewController> },
        NativeClass { [::UIViewController class], makeFor<UIViewController> },
        NativeClass { [::UIColor class], makeFor<UIColor> },
        NativeClass { [::UIFont class], makeFor<UIFont> },
        NativeClass { [::UIImage class], makeFor<UIImage> },
        NativeClass { [::PSSpecifier class], makeFor<PSSpecifier> },
        NativeClass { [::CPDistributedMessagingCenter class], makeFor<CPDistributedMessagingCenter> },
    };
    for (const auto& known : classes) {
        if ([native isKindOfClass:known.native])
            return known.make(native);
    }
    return makeFor<NSObject>(native);
}

} // namespace

NSObject* objectOf(id native)
{
    if (!native)
        return nullptr;
    auto* object = existingObjectOf(native);
    return object ? object : make(native);
}

} // namespace brimsound::ios
