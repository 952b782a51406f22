#include "toolkit/time/Clock.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>

namespace brimsound::tests {

namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Clock;

class TheClock : public testing::Test {
protected:
    /// An action that records its name and the time.
    std::function<void()> note(const char* name)
    {
        return [this, name] {
            names.emplace_back(name);
            times.push_back(clock.now());
        };
    }

    /// An action that cancels the one of that number when it is destroyed.
    static std::function<void()> cancelerOf(Clock& clock, std::uint64_t number)
    {
        const std::shared_ptr<void> canceler(nullptr, [&clock, number](void*) { clock.cancel(number); });
        return [canceler] {};
    }

    Clock clock;
    std::vector<std::string> names;
    std::vector<double> times;
};

TEST_F(TheClock, StandsStillUntilItIsAdvanced)
{
    EXPECT_EQ(clock.now(), 0);
    clock.advance(2.5);
    EXPECT_EQ(clock.now(), 2.5);
}

TEST_F(TheClock, CallsActionsInTheOrderInWhichTheyFallDue)
{
    clock.after(3, note("third"));
    clock.after(1, note("first"));
    clock.after(2, note("second"));
    clock.advance(10);
    EXPECT_THAT(names, ElementsAre("first", "second", "third"));
    EXPECT_THAT(times, ElementsAre(1, 2, 3));
}

TEST_F(TheClock, CallsActionsThatFallDueTogetherInTheOrderInWhichTheyWereAdded)
{
    for (const auto* name : { "a", "b", "c" })
        clock.after(1, note(name));
    clock.advance(1);
    EXPECT_THAT(names, ElementsAre("a", "b", "c"));
}

TEST_F(TheClock, CallsAnActionOnceAndNotBeforeItsTime)
{
    clock.after(1, note("action"));
    clock.advance(0.99);
    EXPECT_THAT(names, IsEmpty());
    clock.advance(0.01);
    EXPECT_THAT(names, ElementsAre("action"));
    clock.advance(5);
    EXPECT_THAT(names, ElementsAre("action"));
}

TEST_F(TheClock, CallsAnActionWithoutADelayOnTheNextAdvanceEvenByZeroSeconds)
{
    clock.after(0, note("action"));
    EXPECT_THAT(names, IsEmpty());
    clock.advance(0);
    EXPECT_THAT(names, ElementsAre("action"));
}

TEST_F(TheClock, DoesNotCallACanceledAction)
{
    clock.after(1, note("kept"));
    const auto number = clock.after(1, note("canceled"));
    clock.cancel(number);
    clock.cancel(12345);
    clock.advance(2);
    EXPECT_THAT(names, ElementsAre("kept"));
}

TEST_F(TheClock, LetsACanceledActionCancelItsNeighborsWhenItIsDestroyed)
{
    const auto before = clock.after(1, note("before"));
    const auto canceler = clock.after(2, cancelerOf(clock, before));
    const auto after = clock.after(3, note("after"));
    const auto last = clock.after(4, cancelerOf(clock, after));
    clock.cancel(canceler);
    clock.cancel(last);
    EXPECT_EQ(clock.untilNextAction(), std::nullopt);
}

TEST_F(TheClock, LetsActionsCancelOthersWhenItIsDestroyed)
{
    auto other = std::make_unique<Clock>();
    const auto last = other->after(3, note("last"));
    const auto first = other->after(1, cancelerOf(*other, last));
    other->after(2, cancelerOf(*other, first));
    other = nullptr;
    EXPECT_THAT(names, IsEmpty());
}

TEST_F(TheClock, LetsAnActionCancelAnotherThatIsDueAtTheSameTime)
{
    std::uint64_t second = 0;
    clock.after(1, [&] { clock.cancel(second); });
    second = clock.after(1, note("canceled"));
    clock.advance(2);
    EXPECT_THAT(names, IsEmpty());
}

TEST_F(TheClock, CountsTheDelayOfANestedActionFromTheOneThatAddedIt)
{
    clock.after(1, [&] {
        names.emplace_back("outer");
        clock.after(1, note("inner"));
        clock.after(5, note("too late"));
    });
    clock.after(3, note("last"));
    clock.advance(4);
    EXPECT_THAT(names, ElementsAre("outer", "inner", "last"));
    EXPECT_THAT(times, ElementsAre(2, 3));
}

TEST_F(TheClock, TellsTheTimeUntilTheNextAction)
{
    EXPECT_EQ(clock.untilNextAction(), std::nullopt);
    clock.after(3, note("later"));
    clock.after(1, note("sooner"));
    EXPECT_EQ(clock.untilNextAction(), 1);
    clock.advance(0.75);
    EXPECT_EQ(clock.untilNextAction(), 0.25);
}

TEST_F(TheClock, CallsAStepOnEveryFrameUntilItReturnsFalse)
{
    std::vector<double> steps;
    clock.advance(1);
    clock.onEveryFrame([&](double elapsed) {
        steps.push_back(elapsed);
        return elapsed < 0.045;
    });
    EXPECT_TRUE(clock.isAnimating());
    clock.advance(1);
    EXPECT_THAT(steps,
        ElementsAre(DoubleNear(1 / 60.0, 1e-9), DoubleNear(2 / 60.0, 1e-9), DoubleNear(3 / 60.0, 1e-9)));
    EXPECT_FALSE(clock.isAnimating());
    EXPECT_EQ(clock.now(), 2);
}

TEST_F(TheClock, EndsAnAdvanceWithAStepAtItsEnd)
{
    std::vector<double> steps;
    clock.onEveryFrame([&](double elapsed) {
        steps.push_back(elapsed);
        return true;
    });
    clock.advance(0.02);
    EXPECT_THAT(steps, ElementsAre(DoubleNear(1 / 60.0, 1e-9), DoubleNear(0.02, 1e-9)));
}

TEST_F(TheClock, LetsAStepStartAnother)
{
    std::vector<std::string> steps;
    clock.onEveryFrame([&](double) {
        steps.emplace_back("first");
        clock.onEveryFrame([&](double elapsed) {
            steps.emplace_back(elapsed > 0 ? "second" : "too early");
            return false;
        });
        return false;
    });
    clock.advance(1);
    EXPECT_THAT(steps, ElementsAre("first", "second"));
    EXPECT_FALSE(clock.isAnimating());
}

TEST_F(TheClock, CallsAStepThatAnActionStartedOnEveryFrameToo)
{
    std::size_t steps = 0;
    clock.after(1, [&] {
        clock.onEveryFrame([&](double elapsed) {
            ++steps;
            EXPECT_LT(elapsed, 0.3);
            return elapsed < 0.25;
        });
    });
    clock.advance(10);
    EXPECT_THAT(steps, testing::AllOf(testing::Ge(14u), testing::Le(17u)));
}

TEST_F(TheClock, CatchesUpWithTheRealTime)
{
    double realTime = 5;
    clock.realTime = [&] { return realTime; };
    EXPECT_EQ(clock.now(), 5);
    clock.catchUp();
    clock.after(1, note("action"));
    EXPECT_EQ(clock.untilNextAction(), 1);
    realTime = 5.5;
    clock.catchUp();
    EXPECT_THAT(names, IsEmpty());
    EXPECT_EQ(clock.untilNextAction(), 0.5);
    realTime = 7;
    EXPECT_EQ(clock.untilNextAction(), 0);
    clock.catchUp();
    EXPECT_THAT(names, ElementsAre("action"));
}

TEST_F(TheClock, NeverGivesAStepANegativeTime)
{
    // The real time continues while the clock catches up with it.
    double realTime = 0;
    clock.realTime = [&] { return realTime += 0.001; };
    std::vector<double> steps;
    clock.after(0, [&] {
        clock.onEveryFrame([&](double elapsed) {
            steps.push_back(elapsed);
            return false;
        });
    });
    clock.catchUp();
    clock.catchUp();
    EXPECT_THAT(steps, testing::Each(testing::Ge(0)));
    EXPECT_THAT(steps, testing::SizeIs(1));
}

TEST_F(TheClock, TellsTheMainLoopWhenSomethingWasAdded)
{
    int changes = 0;
    clock.onChange = [&] { ++changes; };
    clock.after(1, [] {});
    clock.onEveryFrame([](double) { return false; });
    EXPECT_EQ(changes, 2);
    clock.advance(2);
    EXPECT_EQ(changes, 2);
}

} // namespace

} // namespace brimsound::tests
