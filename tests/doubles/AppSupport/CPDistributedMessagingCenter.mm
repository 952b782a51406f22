#import <AppSupport/CPDistributedMessagingCenter.h>

#include "tests/doubles/AppSupport/MediaServer.h"
#include "tests/doubles/Trace.h"

#include <string>

namespace {

bool mediaServerRuns = true;

NSMutableArray* messages()
{
    static NSMutableArray* all = [[NSMutableArray alloc] init];
    return all;
}

} // namespace

namespace brimsound::doubles {

void setMediaServerRuns(bool runs)
{
    mediaServerRuns = runs;
}

NSArray* sentMessages()
{
    return messages();
}

void forgetMessages()
{
    [messages() removeAllObjects];
}

} // namespace brimsound::doubles

@implementation CPDistributedMessagingCenter

+ (CPDistributedMessagingCenter*)centerNamed:(NSString*)name
{
    CPDistributedMessagingCenter* center = [[[self alloc] init] autorelease];
    center->_name = [name copy];
    return center;
}

- (void)dealloc
{
    [_name release];
    [super dealloc];
}

- (NSDictionary*)sendMessageAndReceiveReplyName:(NSString*)name
                                       userInfo:(NSDictionary*)userInfo
                                          error:(NSError**)error
{
    // The sandbox blocks messages until the center has been opened.
    const bool isAnswered = mediaServerRuns && _isOpen;
    brimsound::doubles::record(std::string("message ") + [name UTF8String] + (isAnswered ? "" : " failed"));
    [messages() addObject:userInfo ? [[userInfo copy] autorelease] : [NSDictionary dictionary]];
    if (isAnswered)
        return [NSDictionary dictionary];
    if (error) {
        NSDictionary* why = [NSDictionary dictionaryWithObject:@"No server answers to that name."
                                                        forKey:NSLocalizedDescriptionKey];
        *error = [NSError errorWithDomain:@"CPDistributedMessagingCenterErrorDomain" code:1 userInfo:why];
    }
    return nil;
}

@end
