#import <UIKit/UIKit.h>

struct UIScrollViewState {
    CGSize contentSize {};
};

@implementation UIScrollView

- (instancetype)initWithFrame:(CGRect)frame
{
    self = [super initWithFrame:frame];
    if (self) {
        _scrollViewState = new UIScrollViewState;
        [self setClipsToBounds:YES];
    }
    return self;
}

- (void)dealloc
{
    delete _scrollViewState;
    [super dealloc];
}

- (CGPoint)contentOffset
{
    return [self bounds].origin;
}

- (void)setContentOffset:(CGPoint)offset
{
    CGRect bounds = [self bounds];
    bounds.origin = offset;
    [self setBounds:bounds];
}

- (CGSize)contentSize
{
    return _scrollViewState->contentSize;
}

- (void)setContentSize:(CGSize)size
{
    _scrollViewState->contentSize = size;
}

@end
