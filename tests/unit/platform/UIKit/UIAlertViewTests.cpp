#include "platform/UIKit/UIAlertView.h"

#include "platform/desktop/UIKit/HostedView.h"
#include "tests/support/RecordingEffects.h"
#include "toolkit/alert/Alert.h"
#include "toolkit/time/Clock.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <vector>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

/// Writes down which alert was answered with which button.
class Answers : public UIAlertViewDelegate {
public:
    void alertViewClickedButtonAtIndex(UIAlertView& alert, long buttonIndex) override
    {
        given.emplace_back(&alert, buttonIndex);
    }

    std::vector<std::pair<UIAlertView*, long>> given;
};

class AUIAlertView : public testing::Test {
protected:
    void answer(std::size_t button) const { window->alerts().current()->buttons()[button]->press(); }

    Answers answers;
    const RecordingEffects effects;
    const toolkit::Ref<toolkit::Window> window = toolkit::make<toolkit::Window>(toolkit::Size { 320, 568 });
    const RetainPtr<UIAlertView> alert = make<UIAlertView>(
        "Title", "Really?", &answers, "No", std::vector<std::string> { "Yes", "Perhaps" });
};

TEST_F(AUIAlertView, ShowsItsTextsAndButtonsInTheWindow)
{
    EXPECT_EQ(window->alerts().current(), nullptr);
    alert->show();
    const auto* shown = window->alerts().current();
    ASSERT_EQ(shown, &desktop::nativeOf(*alert));
    EXPECT_EQ(shown->title(), "Title");
    EXPECT_EQ(shown->message(), "Really?");
    EXPECT_THAT(shown->buttonTitles(), ElementsAre("No", "Yes", "Perhaps"));
}

TEST_F(AUIAlertView, TellsItsDelegateTheNumberOfTheButton)
{
    for (const long button : { 0, 2 }) {
        alert->show();
        window->layOutAll();
        answer(static_cast<std::size_t>(button));
        EXPECT_THAT(std::exchange(answers.given, {}), ElementsAre(Pair(alert.get(), button)));
        toolkit::Clock::shared().advance(1);
    }
}

TEST_F(AUIAlertView, NeedsNoDelegate)
{
    make<UIAlertView>("", "Well?", nullptr, "OK", std::vector<std::string> {})->show();
    answer(0);
    EXPECT_EQ(window->alerts().current(), nullptr);
}

TEST_F(AUIAlertView, IsHeldWhileItIsShown)
{
    const auto before = alert->retainCount();
    alert->show();
    EXPECT_GT(alert->retainCount(), before);
    answer(0);
    toolkit::Clock::shared().advance(1);
    EXPECT_EQ(alert->retainCount(), before);
}

TEST_F(AUIAlertView, TellsTheObserverOfEffectsWhenItAppears)
{
    alert->show();
    make<UIAlertView>("", "Sure?", nullptr, "OK", std::vector<std::string> {})->show();
    EXPECT_THAT(effects.trace(), ElementsAre("alert Really? (No, Yes, Perhaps)"));
    answer(0);
    EXPECT_THAT(effects.trace(), ElementsAre("alert Really? (No, Yes, Perhaps)", "alert Sure? (OK)"));
}

TEST(AUIAlertViewWithoutAWindow, IsNotShown)
{
    const RecordingEffects effects;
    make<UIAlertView>("", "Really?", nullptr, "OK", std::vector<std::string> {})->show();
    EXPECT_THAT(effects.trace(), IsEmpty());
}

} // namespace

} // namespace brimsound::tests
