// GNUstep rejects URLs with a query directly after the host, "scheme://host?query", which the platform
// accepts.
#import <Foundation/Foundation.h>
#import <objc/runtime.h>

@interface URLWithoutPath : NSURL {
    NSString* _spelling;
}
@end

@implementation URLWithoutPath

- (id)initWithString:(NSString*)string
{
    const NSRange scheme = [string rangeOfString:@"://"];
    const NSRange query = [string rangeOfString:@"?"];
    if (scheme.location == NSNotFound || query.location == NSNotFound
        || query.location < NSMaxRange(scheme)) {
        [self release];
        return nil;
    }
    self = [super initWithString:[string stringByReplacingCharactersInRange:query withString:@"/?"]];
    if (self)
        _spelling = [string copy];
    return self;
}

- (void)dealloc
{
    [_spelling release];
    [super dealloc];
}

- (NSString*)absoluteString
{
    return _spelling;
}

@end

@implementation NSURL (Query)

+ (void)load
{
    method_exchangeImplementations(class_getClassMethod(self, @selector(URLWithString:)),
        class_getClassMethod(self, @selector(URLWithAnyString:)));
}

+ (NSURL*)URLWithAnyString:(NSString*)string
{
    // Calls the original method: the implementations are exchanged.
    NSURL* const url = [self URLWithAnyString:string];
    return url ? url : [[[URLWithoutPath alloc] initWithString:string] autorelease];
}

@end
