#include "toolkit/time/Animation.h"

#include "toolkit/time/Clock.h"

#include <gmock/gmock.h>

#include <memory>
#include <vector>

namespace brimsound::tests {

namespace {

using testing::DoubleNear;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Animation;
using toolkit::Clock;
using toolkit::easeInOut;
using toolkit::easeOut;
using toolkit::linear;

constexpr double oneFrame = 1.0 / 60;

TEST(ALinearCurve, HasAConstantSpeed)
{
    for (const double progress : { 0.0, 0.3, 1.0 })
        EXPECT_EQ(linear(progress), progress);
}

TEST(AnEasedInAndOutCurve, StartsAndEndsSlowly)
{
    EXPECT_NEAR(easeInOut(0), 0, 1e-9);
    EXPECT_NEAR(easeInOut(1), 1, 1e-9);
    EXPECT_NEAR(easeInOut(0.5), 0.5, 1e-6);
    // The curve's own equation for s = 1/4.
    const double x = 3 * 0.42 * 0.25 * 0.5625 + 3 * 0.58 * 0.0625 * 0.75 + 0.015625;
    EXPECT_NEAR(easeInOut(x), 3 * 0.0625 * 0.75 + 0.015625, 1e-6);
    EXPECT_LT(easeInOut(0.1), 0.05);
    EXPECT_GT(easeInOut(0.9), 0.95);
}

TEST(AnEasedOutCurve, StartsFastAndEndsSlowly)
{
    EXPECT_EQ(easeOut(0), 0);
    EXPECT_EQ(easeOut(0.5), 0.75);
    EXPECT_EQ(easeOut(1), 1);
}

class AnAnimation : public testing::Test {
protected:
    ~AnAnimation() override
    {
        // Steps that are still on the clock use the members of the test.
        animation.reset();
        Clock::shared().advance(oneFrame);
    }

    static void advance(double seconds) { Clock::shared().advance(seconds); }

    /// Moves from 0 to 1 in a second.
    void start()
    {
        animation->start(
            1, linear, [this](double progress) { steps.push_back(progress); }, [this] { ++completions; });
    }

    std::unique_ptr<Animation> animation = std::make_unique<Animation>();
    std::vector<double> steps;
    int completions = 0;
};

TEST_F(AnAnimation, DoesNotRunBeforeItIsStarted)
{
    EXPECT_FALSE(animation->isRunning());
    animation->cancel();
    EXPECT_FALSE(animation->isRunning());
}

TEST_F(AnAnimation, StepsOnEveryFrame)
{
    start();
    EXPECT_TRUE(animation->isRunning());
    EXPECT_THAT(steps, IsEmpty()) << "before the first frame";
    advance(0.04);
    EXPECT_THAT(steps,
        ElementsAre(DoubleNear(oneFrame, 1e-9), DoubleNear(oneFrame * 2, 1e-9), DoubleNear(0.04, 1e-9)));
}

TEST_F(AnAnimation, StepsByItsCurve)
{
    animation->start(1, easeOut, [this](double progress) { steps.push_back(progress); });
    advance(0.5);
    EXPECT_NEAR(steps.back(), 0.75, 1e-9);
}

TEST_F(AnAnimation, CompletesOnceAfterTheStepAtItsEnd)
{
    start();
    advance(0.9);
    EXPECT_EQ(completions, 0);
    advance(0.2);
    EXPECT_EQ(steps.back(), 1);
    EXPECT_EQ(completions, 1);
    EXPECT_FALSE(animation->isRunning());
    const auto stepsSoFar = steps;
    advance(1);
    EXPECT_EQ(steps, stepsSoFar);
    EXPECT_EQ(completions, 1);
}

TEST_F(AnAnimation, OfNoTimeIsAtItsEndOnTheNextFrame)
{
    animation->start(
        0, linear, [this](double progress) { steps.push_back(progress); }, [this] { ++completions; });
    EXPECT_THAT(steps, IsEmpty());
    advance(oneFrame);
    EXPECT_THAT(steps, ElementsAre(1));
    EXPECT_EQ(completions, 1);
}

TEST_F(AnAnimation, ThatIsCanceledNeitherStepsNorCompletes)
{
    start();
    advance(0.1);
    const auto stepsSoFar = steps;
    animation->cancel();
    EXPECT_FALSE(animation->isRunning());
    advance(2);
    EXPECT_EQ(steps, stepsSoFar);
    EXPECT_EQ(completions, 0);
}

TEST_F(AnAnimation, IsCanceledWhenItIsDestroyed)
{
    start();
    animation.reset();
    advance(2);
    EXPECT_THAT(steps, IsEmpty());
    EXPECT_EQ(completions, 0);
}

TEST_F(AnAnimation, IsCanceledWhenAnotherOneIsStarted)
{
    start();
    advance(0.1);
    steps.clear();
    animation->start(1, linear, [this](double) { steps.push_back(7); });
    advance(2);
    EXPECT_THAT(steps, Each(7));
    EXPECT_EQ(completions, 0);
}

TEST_F(AnAnimation, MayBeCanceledByItsStep)
{
    animation->start(
        1, linear,
        [this](double progress) {
            steps.push_back(progress);
            animation->cancel();
        },
        [this] { ++completions; });
    advance(2);
    EXPECT_EQ(steps.size(), 1u);
    EXPECT_EQ(completions, 0);
}

TEST_F(AnAnimation, DoesNotCompleteWhenItsLastStepCancelsIt)
{
    animation->start(
        1, linear,
        [this](double progress) {
            if (progress == 1)
                animation->cancel();
        },
        [this] { ++completions; });
    advance(2);
    EXPECT_EQ(completions, 0);
}

TEST_F(AnAnimation, MayBeDestroyedByItsStepAndByItsCompletion)
{
    animation->start(1, linear, [this](double) { animation.reset(); });
    advance(2);
    EXPECT_EQ(animation, nullptr);

    animation = std::make_unique<Animation>();
    animation->start(
        1, linear, [](double) {}, [this] { animation.reset(); });
    advance(2);
    EXPECT_EQ(animation, nullptr);
}

TEST_F(AnAnimation, MayBeStartedAgainByItsCompletion)
{
    animation->start(
        1, linear, [](double) {},
        [this] {
            EXPECT_FALSE(animation->isRunning());
            start();
        });
    advance(1.1);
    EXPECT_TRUE(animation->isRunning());
    advance(1.1);
    EXPECT_EQ(completions, 1);
}

TEST_F(AnAnimation, ThatRunsGetsTheTimeSinceTheFrameBefore)
{
    animation->run([this](double seconds) {
        steps.push_back(seconds);
        return true;
    });
    advance(oneFrame * 3.5);
    EXPECT_THAT(steps,
        ElementsAre(DoubleNear(oneFrame, 1e-9), DoubleNear(oneFrame, 1e-9), DoubleNear(oneFrame, 1e-9),
            DoubleNear(oneFrame / 2, 1e-9)));
    EXPECT_TRUE(animation->isRunning());
}

TEST_F(AnAnimation, ThatRunsEndsWhenItsStepReturnsFalse)
{
    animation->run([this](double seconds) {
        steps.push_back(seconds);
        return steps.size() < 3;
    });
    advance(1);
    EXPECT_EQ(steps.size(), 3u);
    EXPECT_FALSE(animation->isRunning());
}

TEST_F(AnAnimation, ThatRunsMayBeCanceledByItsStep)
{
    animation->run([this](double seconds) {
        steps.push_back(seconds);
        animation->cancel();
        return true;
    });
    advance(1);
    EXPECT_EQ(steps.size(), 1u);
}

TEST_F(AnAnimation, ThatWaitsCallsItsActionOnce)
{
    animation->wait(0.5, [this] {
        EXPECT_FALSE(animation->isRunning());
        ++completions;
    });
    EXPECT_TRUE(animation->isRunning());
    advance(0.49);
    EXPECT_EQ(completions, 0);
    advance(0.01);
    EXPECT_EQ(completions, 1);
    advance(1);
    EXPECT_EQ(completions, 1);
}

TEST_F(AnAnimation, ThatWaitsLeavesNoActionOnTheClockWhenItIsCanceledRestartedOrDestroyed)
{
    const auto nextAction = [] { return Clock::shared().untilNextAction(); };
    ASSERT_EQ(nextAction(), std::nullopt);
    const auto wait = [this] { animation->wait(0.5, [this] { ++completions; }); };
    wait();
    EXPECT_EQ(nextAction(), 0.5);
    animation->cancel();
    EXPECT_EQ(nextAction(), std::nullopt);
    wait();
    start();
    EXPECT_EQ(nextAction(), std::nullopt);
    wait();
    animation.reset();
    EXPECT_EQ(nextAction(), std::nullopt);
    advance(1);
    EXPECT_EQ(completions, 0);
}

TEST_F(AnAnimation, ThatWaitsMayBeDestroyedOrStartedByItsAction)
{
    animation->wait(0.5, [this] { start(); });
    advance(0.5);
    EXPECT_TRUE(animation->isRunning());
    animation->wait(0.5, [this] { animation.reset(); });
    advance(0.5);
    EXPECT_EQ(animation, nullptr);
}

} // namespace

} // namespace brimsound::tests
