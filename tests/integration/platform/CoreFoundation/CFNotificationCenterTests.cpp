#include "platform/CoreFoundation/CFNotificationCenter.h"

#include "platform/desktop/bus/SessionBus.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/RecordingEffects.h"
#include "tests/support/TestBus.h"

#include <gmock/gmock.h>

namespace brimsound {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Call {
    void* observer;
    std::string name;

    bool operator==(const Call&) const = default;
};
std::vector<Call> calls;

void recordCall(CFNotificationCenterRef center, void* observer, std::string_view name, const void* object,
    const PropertyList::Dictionary* userInfo)
{
    EXPECT_EQ(center, CFNotificationCenterGetDarwinNotifyCenter());
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(userInfo, nullptr);
    calls.push_back({ observer, std::string(name) });
}

void post(const std::string& name)
{
    CFNotificationCenterPostNotification(
        CFNotificationCenterGetDarwinNotifyCenter(), name, nullptr, nullptr, true);
}

// Observers cannot be removed, so every test uses its own name.
void observe(void* observer, const std::string& name, CFNotificationCallback callback = recordCall)
{
    CFNotificationCenterAddObserver(
        CFNotificationCenterGetDarwinNotifyCenter(), observer, callback, name, nullptr, 0);
}

class ADarwinNotification : public testing::Test {
protected:
    ADarwinNotification() { calls.clear(); }

    static void runMainLoop() { desktop::SessionBus::shared().drain(); }

    tests::TestBus bus;
    tests::RecordingEffects effects;
    int anObserver = 0;
};

} // namespace

TEST_F(ADarwinNotification, ReachesThePosterOnTheMainLoopAndNotInsideThePost)
{
    observe(&anObserver, "own");
    post("own");
    EXPECT_THAT(calls, IsEmpty());
    EXPECT_THAT(effects.trace(), ElementsAre("post own"));

    runMainLoop();
    EXPECT_THAT(calls, ElementsAre(Call { &anObserver, "own" }));
    EXPECT_THAT(effects.trace(), ElementsAre("post own", "deliver own"));
}

TEST_F(ADarwinNotification, ReachesThisProcessFromAnotherOne)
{
    observe(&anObserver, "theirs");
    bus.postFromAnotherProcess("theirs");
    runMainLoop();
    EXPECT_THAT(calls, ElementsAre(Call { &anObserver, "theirs" }));
    EXPECT_THAT(effects.trace(), ElementsAre("deliver theirs"));
}

TEST_F(ADarwinNotification, IsDeliveredOncePerRegistrationAndPost)
{
    int another = 0;
    observe(&anObserver, "twice");
    observe(&another, "twice");
    observe(&anObserver, "twice");
    post("twice");
    runMainLoop();
    EXPECT_THAT(calls,
        ElementsAre(
            Call { &anObserver, "twice" }, Call { &another, "twice" }, Call { &anObserver, "twice" }));
    EXPECT_THAT(effects.trace(), ElementsAre("post twice", "deliver twice"));

    post("twice");
    post("twice");
    runMainLoop();
    EXPECT_EQ(calls.size(), 9u);
}

TEST_F(ADarwinNotification, OfAnotherNameIsNotDelivered)
{
    observe(&anObserver, "mine");
    post("mine too");
    runMainLoop();
    EXPECT_THAT(calls, IsEmpty());
    EXPECT_THAT(effects.trace(), ElementsAre("post mine too"));
}

TEST_F(ADarwinNotification, ThatACallbackPostsIsDeliveredAfterIt)
{
    observe(&anObserver, "answer");
    observe(&anObserver, "question", [](auto...) {
        post("answer");
        EXPECT_THAT(calls, IsEmpty());
    });
    post("question");
    runMainLoop();
    runMainLoop();
    EXPECT_THAT(
        effects.trace(), ElementsAre("post question", "deliver question", "post answer", "deliver answer"));
}

TEST_F(ADarwinNotification, WithoutABusIsDroppedSilently)
{
    bus.stop();
    desktop::SessionBus::shared().process();
    const tests::EnvironmentVariable address("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus");
    post("lost");
    EXPECT_THAT(effects.trace(), IsEmpty());
}

} // namespace brimsound
