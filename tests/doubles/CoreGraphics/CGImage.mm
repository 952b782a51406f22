#include "tests/doubles/CoreGraphics/Picture.h"

namespace brimsound::doubles {

::CGImageRef makePicture(std::shared_ptr<const desktop::Bitmap> bitmap)
{
    return bitmap ? new ::CGImage { .bitmap = std::move(bitmap) } : nullptr;
}

} // namespace brimsound::doubles

CGImageRef CGImageRetain(CGImageRef image)
{
    if (image)
        ++image->references;
    return image;
}

void CGImageRelease(CGImageRef image)
{
    if (image && --image->references == 0)
        delete image;
}

size_t CGImageGetWidth(CGImageRef image)
{
    return image ? image->bitmap->width() : 0;
}

size_t CGImageGetHeight(CGImageRef image)
{
    return image ? image->bitmap->height() : 0;
}
