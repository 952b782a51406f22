#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/Foundation/NSObject.h"

#include <string>

namespace brimsound {

/// An immutable font with a size in points.
class UIFont : public NSObject {
public:
    /// The platform's default text font.
    static RetainPtr<UIFont> systemFontOfSize(CGFloat size);
    /// The font with that PostScript name ("HelveticaNeue-Bold"); null when the platform has no font for it.
    static RetainPtr<UIFont> fontWithNameSize(const std::string& name, CGFloat size);

    /// The same typeface in another size.
    RetainPtr<UIFont> fontWithSize(CGFloat size) const;

    /// The PostScript name; empty when the platform's default text font has none.
    std::string fontName() const;
    CGFloat pointSize() const;

protected:
    explicit UIFont(Peer*);
};

} // namespace brimsound
