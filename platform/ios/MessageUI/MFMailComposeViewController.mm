#include "platform/MessageUI/MFMailComposeViewController.h"

#include "platform/ios/Foundation/NativeError.h"
#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/Foundation/Peer.h"

#import <MessageUI/MessageUI.h>
#import <objc/runtime.h>

/// Forwards the result to the product's delegate. The composer retains this object and with it the delegate,
/// which might otherwise be destroyed before the result arrives: the app can leave a pane while the composer
/// is still shown.
@interface BRMailComposeDelegate : NSObject <MFMailComposeViewControllerDelegate> {
@public
    brimsound::MFMailComposeViewControllerDelegate* _delegate;
    id _nativeDelegate;
}
@end

@implementation BRMailComposeDelegate

- (void)dealloc
{
    [_nativeDelegate release];
    [super dealloc];
}

- (void)mailComposeController:(MFMailComposeViewController*)composer
          didFinishWithResult:(MFMailComposeResult)result
                        error:(NSError*)nativeError
{
    const auto error = brimsound::ios::errorOf(nativeError);
    _delegate->mailComposeControllerDidFinishWithResultError(
        *brimsound::ios::objectOf<brimsound::MFMailComposeViewController>(composer),
        static_cast<brimsound::MFMailComposeResult>(result), error ? &*error : nullptr);
}

@end

namespace brimsound {

namespace {

const char delegateKey = 0;

/// Nil on a device without a mail account.
::MFMailComposeViewController* nativeOf(const MFMailComposeViewController& composer)
{
    id native = ios::nativeOf(composer);
    return [native isKindOfClass:[::MFMailComposeViewController class]] ? native : nil;
}

/// A replacement for a composer that could not be created.
id orPlaceholder(id native)
{
    return native ? native : [[::NSObject alloc] init];
}

} // namespace

MFMailComposeViewController::MFMailComposeViewController(Peer* peer)
    : UIViewController(peer)
{
}

MFMailComposeViewController::MFMailComposeViewController()
    : MFMailComposeViewController(ios::peer(orPlaceholder([[::MFMailComposeViewController alloc] init])))
{
}

void MFMailComposeViewController::setMailComposeDelegate(MFMailComposeViewControllerDelegate* delegate)
{
    auto* composer = nativeOf(*this);
    if (!composer)
        return;
    BRMailComposeDelegate* native = nil;
    if (delegate) {
        native = [[[BRMailComposeDelegate alloc] init] autorelease];
        native->_delegate = delegate;
        native->_nativeDelegate = [ios::nativeInRole(delegate) retain];
    }
    [composer setMailComposeDelegate:native];
    objc_setAssociatedObject(composer, &delegateKey, native, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
}

void MFMailComposeViewController::setSubject(const std::string& subject)
{
    [nativeOf(*this) setSubject:ios::nativeText(subject)];
}

void MFMailComposeViewController::setToRecipients(const std::vector<std::string>& addresses)
{
    ::NSMutableArray* natives = [::NSMutableArray arrayWithCapacity:addresses.size()];
    for (const auto& address : addresses)
        [natives addObject:ios::nativeText(address)];
    [nativeOf(*this) setToRecipients:natives];
}

void MFMailComposeViewController::addAttachmentDataMimeTypeFileName(
    NSData data, const std::string& mimeType, const std::string& fileName)
{
    [nativeOf(*this) addAttachmentData:[::NSData dataWithBytes:data.data() length:data.size()]
                              mimeType:ios::nativeText(mimeType)
                              fileName:ios::nativeText(fileName)];
}

} // namespace brimsound
