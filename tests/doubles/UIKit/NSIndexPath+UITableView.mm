#import <UIKit/UIKit.h>

@implementation NSIndexPath (UITableView)

+ (instancetype)indexPathForRow:(NSInteger)row inSection:(NSInteger)section
{
    NSUInteger indexes[] = { static_cast<NSUInteger>(section), static_cast<NSUInteger>(row) };
    return [self indexPathWithIndexes:indexes length:2];
}

- (NSInteger)section
{
    return static_cast<NSInteger>([self indexAtPosition:0]);
}

- (NSInteger)row
{
    return static_cast<NSInteger>([self indexAtPosition:1]);
}

@end
