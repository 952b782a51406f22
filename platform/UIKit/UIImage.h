// Images.
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/Foundation/NSObject.h"

namespace brimsound {

/// An unchanging image.
class UIImage : public NSObject {
public:
    /// Width and height in points.
    CGSize size() const;

protected:
    explicit UIImage(Peer*);
};

} // namespace brimsound
