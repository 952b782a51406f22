#include "tests/doubles/CoreGraphics/Picture.h"
#include "tests/doubles/UIKit/Png.h"

#import <UIKit/UIKit.h>

struct UIImageState {
    CGImageRef picture = nullptr;
    CGFloat scale = 1;
};

namespace {

/// "plus@2x.png" and "plus@2x~ipad.png" are at 2 pixels a point.
CGFloat scaleInName(NSString* path)
{
    NSString* name = [[path lastPathComponent] stringByDeletingPathExtension];
    name = [[name componentsSeparatedByString:@"~"] objectAtIndex:0];
    if ([name hasSuffix:@"@2x"])
        return 2;
    return [name hasSuffix:@"@3x"] ? 3 : 1;
}

} // namespace

@implementation UIImage

- (id)initWithCGImage:(CGImageRef)picture scale:(CGFloat)scale
{
    self = [super init];
    if (!picture) {
        [self release];
        return nil;
    }
    if (self)
        _imageState = new UIImageState { CGImageRetain(picture), scale };
    return self;
}

- (void)dealloc
{
    if (_imageState)
        CGImageRelease(_imageState->picture);
    delete _imageState;
    [super dealloc];
}

+ (UIImage*)imageWithCGImage:(CGImageRef)image
{
    return [self imageWithCGImage:image scale:1];
}

+ (UIImage*)imageWithCGImage:(CGImageRef)image scale:(CGFloat)scale
{
    return [[[self alloc] initWithCGImage:image scale:scale] autorelease];
}

+ (UIImage*)imageWithContentsOfFile:(NSString*)path
{
    NSData* file = [NSData dataWithContentsOfFile:path];
    const CGImageRef picture = file
        ? brimsound::doubles::makePicture(brimsound::doubles::readPng([file bytes], [file length]))
        : nullptr;
    UIImage* image = [self imageWithCGImage:picture scale:scaleInName(path)];
    CGImageRelease(picture);
    return image;
}

- (CGSize)size
{
    return CGSizeMake(static_cast<CGFloat>(CGImageGetWidth(_imageState->picture)) / _imageState->scale,
        static_cast<CGFloat>(CGImageGetHeight(_imageState->picture)) / _imageState->scale);
}

- (CGFloat)scale
{
    return _imageState->scale;
}

- (CGImageRef)CGImage
{
    return _imageState->picture;
}

- (void)drawInRect:(CGRect)rect
{
    brimsound::doubles::drawPicture(
        UIGraphicsGetCurrentContext(), rect, _imageState->picture, brimsound::doubles::Top::AtLeastY);
}

@end
