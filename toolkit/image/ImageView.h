#pragma once

#include "toolkit/image/Image.h"
#include "toolkit/view/View.h"

namespace brimsound::toolkit {

/// Shows an image, stretched to its bounds.
class ImageView : public View {
public:
    using View::View;

    /// Null for none.
    Image* image() const { return _image.get(); }
    void setImage(Ref<Image>);
    /// Shown instead while the view is highlighted; null for the same image.
    Image* highlightedImage() const { return _highlightedImage.get(); }
    void setHighlightedImage(Ref<Image>);
    bool isHighlighted() const { return _highlighted; }
    void setHighlighted(bool);

    /// Called when the image changed, because the view may need another size.
    std::function<void()> onChange;

    void draw(Canvas&) const override;

private:
    Ref<Image> _image;
    Ref<Image> _highlightedImage;
    bool _highlighted = false;
};

} // namespace brimsound::toolkit
