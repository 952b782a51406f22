#include "platform/ios/CoreGraphics/NativeGraphics.h"

#include "platform/ios/Foundation/Peer.h"

@implementation BRGraphicsContext

- (id)initWithContext:(CGContextRef)context
{
    self = [super init];
    if (self)
        _context = CGContextRetain(context);
    return self;
}

- (void)dealloc
{
    CGContextRelease(_context);
    [super dealloc];
}

- (CGContextRef)context
{
    return _context;
}

@end

@implementation BRPicture

- (id)initWithImage:(CGImageRef)image
{
    self = [super init];
    if (self)
        _image = CGImageRetain(image);
    return self;
}

- (void)dealloc
{
    CGImageRelease(_image);
    [super dealloc];
}

- (CGImageRef)image
{
    return _image;
}

@end

namespace brimsound {

CGContext::CGContext(Peer* peer)
    : NSObject(peer)
{
}

CGImage::CGImage(Peer* peer)
    : NSObject(peer)
{
}

namespace ios {

namespace {

struct Context : CGContext {
    explicit Context(Peer* peer)
        : CGContext(peer)
    {
    }
};

struct Picture : CGImage {
    explicit Picture(Peer* peer)
        : CGImage(peer)
    {
    }
};

} // namespace

::CGContextRef nativeContext(CGContextRef context)
{
    BRGraphicsContext* native = nativeOf(context);
    return [native context];
}

::CGImageRef nativeImage(CGImageRef image)
{
    BRPicture* native = nativeOf(image);
    return [native image];
}

RetainPtr<CGContext> makeContext(::CGContextRef context)
{
    if (!context)
        return nullptr;
    return adopt<CGContext>(new Context(peer([[BRGraphicsContext alloc] initWithContext:context])));
}

RetainPtr<CGImage> makePicture(::CGImageRef image)
{
    if (!image)
        return nullptr;
    return adopt<CGImage>(new Picture(peer([[BRPicture alloc] initWithImage:image])));
}

} // namespace ios

} // namespace brimsound
