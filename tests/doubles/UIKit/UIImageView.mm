#include "tests/doubles/CoreGraphics/Picture.h"
#include "tests/doubles/UIKit/Forward.h"
#include "toolkit/image/ImageView.h"

namespace doubles = brimsound::doubles;
namespace toolkit = brimsound::toolkit;

namespace brimsound::doubles {

namespace {

/// A UIImage as an image of the toolkit, which retains it.
class NativeImage : public toolkit::Image {
public:
    explicit NativeImage(UIImage* image)
        : Image({ [image size].width, [image size].height })
        , _image([image retain])
    {
    }

    UIImage* image() const { return _image; }
    void draw(toolkit::Canvas& canvas, const toolkit::Rect& rect) const override
    {
        const ::CGImageRef picture = [_image CGImage];
        const auto& pixels = picture->bitmap->pixels();
        canvas.drawPixels({ pixels.bytes, pixels.width, pixels.height, pixels.bytesPerRow }, rect);
    }

protected:
    ~NativeImage() override { [_image release]; }

private:
    UIImage* const _image;
};

} // namespace

// Not in the namespace without a name, because the macros look beside the other conversions.

static toolkit::Ref<toolkit::Image> toToolkit(::UIImage* image)
{
    if (!image)
        return nullptr;
    return toolkit::make<NativeImage>(image);
}

static ::UIImage* toPlatform(toolkit::Image* image)
{
    return image ? static_cast<NativeImage*>(image)->image() : nil;
}

} // namespace brimsound::doubles

namespace {

toolkit::ImageView& native(UIImageView* view)
{
    return doubles::nativeOf<toolkit::ImageView>(view);
}

} // namespace

@implementation UIImageView

- (instancetype)initWithFrame:(CGRect)frame
{
    return [self initWithNative:new doubles::Hosted<toolkit::ImageView>(doubles::toToolkit(frame))];
}

- (instancetype)initWithNative:(toolkit::View*)view
{
    self = [super initWithNative:view];
    [self setUserInteractionEnabled:NO];
    return self;
}

FORWARD_PROPERTY(UIImage*, image, setImage, image, setImage)
FORWARD_PROPERTY(UIImage*, highlightedImage, setHighlightedImage, highlightedImage, setHighlightedImage)
FORWARD_PROPERTY(BOOL, isHighlighted, setHighlighted, isHighlighted, setHighlighted)

@end
