// Views that show an image.
#pragma once

#include "platform/UIKit/UIImage.h"
#include "platform/UIKit/UIView.h"

namespace brimsound {

/// Shows an image, stretched to its bounds.
class UIImageView : public UIView {
public:
    explicit UIImageView(const CGRect& frame = {});

    /// Null (as at first) for none.
    UIImage* image() const;
    void setImage(RetainPtr<UIImage>);
    /// Shown instead while the view is highlighted; null (as at first) for the same image.
    UIImage* highlightedImage() const;
    void setHighlightedImage(RetainPtr<UIImage>);
    /// A table row highlights the image views in it while it is pressed or selected.
    bool isHighlighted() const;
    void setHighlighted(bool);

protected:
    explicit UIImageView(Peer*);
};

} // namespace brimsound
