#include "tests/ios/doubles/UIKit/Assign.h"
#include "tests/ios/doubles/UIKit/UITableViewCellState.h"

using brimsound::doubles::assignRetained;

struct UIImageViewState {
    UIImage* image = nil;
    UIImage* highlightedImage = nil;
    bool isHighlighted = false;
};

@implementation UIImageView

- (instancetype)initWithFrame:(CGRect)frame
{
    self = [super initWithFrame:frame];
    if (self) {
        _imageViewState = new UIImageViewState;
        [self setUserInteractionEnabled:NO];
    }
    return self;
}

- (void)dealloc
{
    [_imageViewState->image release];
    [_imageViewState->highlightedImage release];
    delete _imageViewState;
    [super dealloc];
}

- (UIImage*)image
{
    return _imageViewState->image;
}

- (void)setImage:(UIImage*)image
{
    assignRetained(_imageViewState->image, image);
    brimsound::doubles::rowContentsChanged(self);
}

- (UIImage*)highlightedImage
{
    return _imageViewState->highlightedImage;
}

- (void)setHighlightedImage:(UIImage*)image
{
    assignRetained(_imageViewState->highlightedImage, image);
}

- (BOOL)isHighlighted
{
    return _imageViewState->isHighlighted;
}

- (void)setHighlighted:(BOOL)highlighted
{
    _imageViewState->isHighlighted = highlighted;
}

@end
