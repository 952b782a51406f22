// Conversion of index paths between the platform and the product.
#pragma once

#include "platform/Foundation/NSIndexPath.h"

#import <UIKit/UIKit.h>

namespace brimsound::ios {

inline ::NSIndexPath* native(const NSIndexPath& path)
{
    return [::NSIndexPath indexPathForRow:static_cast<NSInteger>(path.row)
                                inSection:static_cast<NSInteger>(path.section)];
}

inline NSIndexPath ours(::NSIndexPath* path)
{
    return { static_cast<std::size_t>([path section]), static_cast<std::size_t>([path row]) };
}

} // namespace brimsound::ios
