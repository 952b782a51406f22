// Pictures made of pixels.
#pragma once

#include "platform/Foundation/NSObject.h"

namespace brimsound {

/// An unchanging picture. It knows no points: how many of its pixels make one is up to who shows it.
class CGImage : public NSObject {
protected:
    explicit CGImage(Peer*);
};

/// Not retained. May be null.
using CGImageRef = CGImage*;

} // namespace brimsound
