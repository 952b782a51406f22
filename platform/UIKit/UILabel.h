#pragma once

#include "platform/UIKit/UIFont.h"
#include "platform/UIKit/UIView.h"

#include <string>

namespace brimsound {

enum class NSTextAlignment {
    Left = 0,
    Center = 1,
    Right = 2,
    /// At the side where the language of the interface starts its lines.
    Natural = 4,
};

/// One line of text, truncated with an ellipsis when it does not fit.
class UILabel : public UIView {
public:
    explicit UILabel(const CGRect& frame = {});

    std::string text() const;
    void setText(const std::string&);
    /// Initially the default text font at 17 points.
    RetainPtr<UIFont> font() const;
    void setFont(RetainPtr<UIFont>);
    /// Initially black.
    RetainPtr<UIColor> textColor() const;
    void setTextColor(RetainPtr<UIColor>);
    /// Null (the initial value) for a label that does not change when it is highlighted.
    RetainPtr<UIColor> highlightedTextColor() const;
    void setHighlightedTextColor(RetainPtr<UIColor>);
    /// A pressed or selected table row highlights its labels.
    bool isHighlighted() const;
    void setHighlighted(bool);
    /// Initially natural.
    NSTextAlignment textAlignment() const;
    void setTextAlignment(NSTextAlignment);

protected:
    explicit UILabel(Peer*);
};

} // namespace brimsound
