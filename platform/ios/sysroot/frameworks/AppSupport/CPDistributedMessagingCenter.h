// Messages between processes. The framework is private.
#pragma once

#import <Foundation/Foundation.h>

@interface CPDistributedMessagingCenter : NSObject
#if defined(GNUSTEP)
{
@public
    NSString* _name;
    BOOL _isOpen;
}
#endif

+ (CPDistributedMessagingCenter*)centerNamed:(NSString*)name;

/// The reply. Nil on failure; `error` is then set.
- (NSDictionary*)sendMessageAndReceiveReplyName:(NSString*)name
                                       userInfo:(NSDictionary*)userInfo
                                          error:(NSError**)error;

@end

#ifdef __cplusplus
extern "C" {
#endif

/// From librocketbootstrap. Allows messages through this center to reach servers outside the sandbox.
void rocketbootstrap_distributedmessagingcenter_apply(CPDistributedMessagingCenter* messaging_center);

#ifdef __cplusplus
}
#endif
