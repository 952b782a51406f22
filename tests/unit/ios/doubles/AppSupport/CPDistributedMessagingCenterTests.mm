#import <AppSupport/CPDistributedMessagingCenter.h>

#include "tests/doubles/AppSupport/MediaServer.h"
#include "tests/doubles/Trace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimsound::doubles {
namespace {

using testing::ElementsAre;

class AMessage : public testing::Test {
protected:
    AMessage()
    {
        setMediaServerRuns(true);
        forgetMessages();
        takeTrace();
    }
    ~AMessage() override { setMediaServerRuns(true); }

    NSDictionary* send()
    {
        error = nil;
        return [center sendMessageAndReceiveReplyName:@"hello"
                                             userInfo:[NSDictionary dictionaryWithObject:@"me" forKey:@"from"]
                                                error:&error];
    }

    CPDistributedMessagingCenter* center = [CPDistributedMessagingCenter centerNamed:@"brimsound.tests"];
    NSError* error = nil;
};

TEST_F(AMessage, IsAnsweredByAServerThroughAnOpenCenter)
{
    rocketbootstrap_distributedmessagingcenter_apply(center);
    EXPECT_TRUE(send());
    EXPECT_EQ(error, nil);
    EXPECT_THAT(takeTrace(), ElementsAre("message hello"));
    ASSERT_EQ([sentMessages() count], 1u);
    EXPECT_TRUE([[[sentMessages() objectAtIndex:0] objectForKey:@"from"] isEqual:@"me"]);
}

TEST_F(AMessage, FailsWithoutAServer)
{
    rocketbootstrap_distributedmessagingcenter_apply(center);
    setMediaServerRuns(false);
    EXPECT_FALSE(send());
    EXPECT_TRUE([error localizedDescription]);
    EXPECT_THAT(takeTrace(), ElementsAre("message hello failed"));
}

TEST_F(AMessage, FailsThroughACenterThatWasNotOpened)
{
    EXPECT_FALSE(send());
    EXPECT_TRUE(error);
}

} // namespace
} // namespace brimsound::doubles
