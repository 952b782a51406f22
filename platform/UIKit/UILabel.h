// Labels.
#pragma once

#include "platform/UIKit/UIFont.h"
#include "platform/UIKit/UIView.h"

#include <string>

namespace brimsound {

enum class NSTextAlignment {
    Left = 0,
    Center = 1,
    Right = 2,
};

/// One line of text, cut off with an ellipsis where it does not fit.
class UILabel : public UIView {
public:
    explicit UILabel(const CGRect& frame = {});

    std::string text() const;
    void setText(const std::string&);
    /// At first the default text font at 17 points.
    RetainPtr<UIFont> font() const;
    void setFont(RetainPtr<UIFont>);
    /// At first black.
    RetainPtr<UIColor> textColor() const;
    void setTextColor(RetainPtr<UIColor>);
    /// Null (as at first) for a label that looks the same when it is highlighted.
    RetainPtr<UIColor> highlightedTextColor() const;
    void setHighlightedTextColor(RetainPtr<UIColor>);
    /// A table row highlights the labels in it while it is pressed or selected.
    bool isHighlighted() const;
    void setHighlighted(bool);
    NSTextAlignment textAlignment() const;
    void setTextAlignment(NSTextAlignment);

protected:
    explicit UILabel(Peer*);
};

} // namespace brimsound
