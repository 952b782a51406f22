#import <AppSupport/CPDistributedMessagingCenter.h>

extern "C" void rocketbootstrap_distributedmessagingcenter_apply(CPDistributedMessagingCenter* center)
{
    center->_isOpen = YES;
}
