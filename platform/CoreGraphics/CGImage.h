#pragma once

#include "platform/Foundation/NSObject.h"

namespace brimsound {

/// An immutable picture. It has no size in points: whoever shows it chooses how many pixels make a point.
class CGImage : public NSObject {
protected:
    explicit CGImage(Peer*);
};

/// Not retained. May be null.
using CGImageRef = CGImage*;

} // namespace brimsound
