#include "toolkit/image/ImageView.h"

#include <utility>

namespace brimsound::toolkit {

void ImageView::setImage(Ref<Image> image)
{
    if (_image == image)
        return;
    _image = std::move(image);
    setNeedsDisplay();
    if (onChange)
        onChange();
}

void ImageView::setHighlightedImage(Ref<Image> image)
{
    if (_highlightedImage == image)
        return;
    _highlightedImage = std::move(image);
    setNeedsDisplay();
}

void ImageView::setHighlighted(bool highlighted)
{
    if (std::exchange(_highlighted, highlighted) != highlighted)
        setNeedsDisplay();
}

void ImageView::draw(Canvas& canvas) const
{
    const auto& shown = _highlighted && _highlightedImage ? _highlightedImage : _image;
    if (shown)
        shown->draw(canvas, bounds());
}

} // namespace brimsound::toolkit
