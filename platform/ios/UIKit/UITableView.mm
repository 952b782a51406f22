#include "platform/UIKit/UITableView.h"

#include "platform/ios/CoreGraphics/Geometry.h"
#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/Foundation/Peer.h"
#include "platform/ios/UIKit/IndexPath.h"
#include "platform/ios/UIKit/TableDelegate.h"

#import <objc/runtime.h>

namespace brimsound {

using ios::objectOf;
using ios::retainedObjectOf;

namespace {

const char delegateKey = 0;

::UITableView* nativeOf(const UITableView& table)
{
    return ios::nativeOf(table);
}

/// The table's delegate object, created at its first use.
BRTableDelegate* delegateOf(::UITableView* table)
{
    BRTableDelegate* delegate = objc_getAssociatedObject(table, &delegateKey);
    if (!delegate) {
        delegate = [[[BRTableDelegate alloc] init] autorelease];
        objc_setAssociatedObject(table, &delegateKey, delegate, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
    }
    return delegate;
}

} // namespace

UITableView::UITableView(const CGRect& frame, UITableViewStyle style)
    : UITableView(ios::peer([[::UITableView alloc] initWithFrame:ios::native(frame)
                                                           style:static_cast<::UITableViewStyle>(style)]))
{
}

UITableView::UITableView(Peer* peer)
    : UIScrollView(peer)
{
}

void UITableView::setDataSource(UITableViewDataSource* dataSource)
{
    BRTableDelegate* delegate = delegateOf(nativeOf(*this));
    delegate->_dataSource = dataSource;
    [nativeOf(*this) setDataSource:dataSource ? delegate : nil];
}

void UITableView::setDelegate(UITableViewDelegate* ours)
{
    BRTableDelegate* delegate = delegateOf(nativeOf(*this));
    delegate->_delegate = ours;
    [nativeOf(*this) setDelegate:ours ? delegate : nil];
}

void UITableView::reloadData()
{
    [nativeOf(*this) reloadData];
}

void UITableView::deleteRowsAtIndexPathsWithRowAnimation(
    const std::vector<NSIndexPath>& paths, UITableViewRowAnimation animation)
{
    ::NSMutableArray* natives = [::NSMutableArray arrayWithCapacity:paths.size()];
    for (const auto& path : paths)
        [natives addObject:ios::native(path)];
    [nativeOf(*this) deleteRowsAtIndexPaths:natives
                           withRowAnimation:static_cast<::UITableViewRowAnimation>(animation)];
}

RetainPtr<UITableViewCell> UITableView::dequeueReusableCellWithIdentifier(const std::string& identifier)
{
    return retainedObjectOf<UITableViewCell>(
        [nativeOf(*this) dequeueReusableCellWithIdentifier:ios::nativeText(identifier)]);
}

CGRect UITableView::rectForRowAtIndexPath(const NSIndexPath& path) const
{
    return ios::ours([nativeOf(*this) rectForRowAtIndexPath:ios::native(path)]);
}

UITableViewCell* UITableView::cellForRowAtIndexPath(const NSIndexPath& path) const
{
    return objectOf<UITableViewCell>([nativeOf(*this) cellForRowAtIndexPath:ios::native(path)]);
}

RetainPtr<UIColor> UITableView::separatorColor() const
{
    return retainedObjectOf<UIColor>([nativeOf(*this) separatorColor]);
}

void UITableView::setSeparatorColor(RetainPtr<UIColor> color)
{
    [nativeOf(*this) setSeparatorColor:ios::nativeOf(color.get())];
}

void UITableView::layoutSubviews()
{
    UIView::layoutSubviews();
}

} // namespace brimsound
