#pragma once

#include "platform/UIKit/UIImage.h"
#include "platform/UIKit/UIView.h"

namespace brimsound {

/// Shows an image, stretched to its bounds.
class UIImageView : public UIView {
public:
    explicit UIImageView(const CGRect& frame = {});

    /// Null (the initial value) for no image.
    UIImage* image() const;
    void setImage(RetainPtr<UIImage>);
    /// Shown while the view is highlighted; null (the initial value) for the same image.
    UIImage* highlightedImage() const;
    void setHighlightedImage(RetainPtr<UIImage>);
    /// A pressed or selected table row highlights its image views.
    bool isHighlighted() const;
    void setHighlighted(bool);

protected:
    explicit UIImageView(Peer*);
};

} // namespace brimsound
