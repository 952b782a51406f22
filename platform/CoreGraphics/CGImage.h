#pragma once

#include "platform/Foundation/NSObject.h"

namespace brimsound {

/// An immutable picture. It has no size in points: the code that shows it chooses the number of pixels per
/// point.
class CGImage : public NSObject {
protected:
    explicit CGImage(Peer*);
};

/// Not retained. May be null.
using CGImageRef = CGImage*;

} // namespace brimsound
