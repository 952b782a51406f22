#include "platform/UIKit/UIFont.h"

#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/Foundation/Peer.h"

#import <UIKit/UIKit.h>

namespace brimsound {

using ios::retainedObjectOf;

UIFont::UIFont(Peer* peer)
    : NSObject(peer)
{
}

RetainPtr<UIFont> UIFont::systemFontOfSize(CGFloat size)
{
    return retainedObjectOf<UIFont>([::UIFont systemFontOfSize:size]);
}

RetainPtr<UIFont> UIFont::fontWithNameSize(const std::string& name, CGFloat size)
{
    return retainedObjectOf<UIFont>([::UIFont fontWithName:ios::nativeText(name) size:size]);
}

RetainPtr<UIFont> UIFont::fontWithSize(CGFloat size) const
{
    return retainedObjectOf<UIFont>([ios::nativeOf(*this) fontWithSize:size]);
}

std::string UIFont::fontName() const
{
    ::UIFont* native = ios::nativeOf(*this);
    return ios::textOf([native fontName]);
}

CGFloat UIFont::pointSize() const
{
    ::UIFont* native = ios::nativeOf(*this);
    return [native pointSize];
}

} // namespace brimsound
