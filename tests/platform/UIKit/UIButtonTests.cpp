#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/UILabel.h"
#include "platform/desktop/UIKit/Accessible.h"
#include "platform/desktop/UIKit/Window.h"

#include "tests/platform/UIKit/Controls.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using desktop::accessibleChildren;
using desktop::AccessibleRole;
using desktop::Pointer;
using testing::ElementsAre;
using testing::IsEmpty;

/// A bar of 100 x 44 points with a label and over it a button that is larger than the bar.
class AButton : public testing::Test {
protected:
    AButton()
    {
        label->setText("Cancel");
        window->addSubview(*bar);
        bar->addSubview(*label);
        bar->addSubview(*button);
        log->listenTo(*button);
        window->layOut();
    }

    const RetainPtr<desktop::Window> window = make<desktop::Window>(CGSize { 320, 400 });
    const RetainPtr<UIView> bar = make<UIView>(CGRectMake(110, 100, 100, 44));
    const RetainPtr<UILabel> label = make<UILabel>(CGRectMake(0, 0, 100, 44));
    const RetainPtr<UIButton> button = make<UIButton>(CGRectMake(0, 0, 320, 88));
    const RetainPtr<EventLog> log = make<EventLog>();
};

TEST_F(AButton, SendsWhatTheTouchDoes)
{
    window->touchDown({ { 150, 120 }, Pointer::Finger });
    window->touchUp({ 150, 120 });
    EXPECT_THAT(log->take(), ElementsAre("down", "up inside"));
    window->touchDown({ { 150, 120 }, Pointer::Finger });
    window->touchUp({ 150, 390 });
    EXPECT_THAT(log->take(), ElementsAre("down", "up outside"));
    window->touchDown({ { 150, 120 }, Pointer::Finger });
    window->touchCancel();
    EXPECT_THAT(log->take(), ElementsAre("down", "cancel"));
}

TEST_F(AButton, IsNotTouchedBeyondWhatItLiesIn)
{
    window->touchDown({ { 150, 150 }, Pointer::Finger });
    window->touchUp({ 150, 150 });
    EXPECT_THAT(log->take(), IsEmpty());
}

TEST_F(AButton, IsNamedByTheLabelBelowIt)
{
    const auto accessible = desktop::peerOf(*button).accessible();
    EXPECT_EQ(accessible.role, AccessibleRole::Button);
    EXPECT_EQ(accessible.name, "Cancel");
    EXPECT_TRUE(accessible.focusable);
}

TEST_F(AButton, StandsForTheLabelBelowIt)
{
    EXPECT_THAT(accessibleChildren(*window), ElementsAre(button.get()));
}

TEST_F(AButton, MeansNothingOverNoWords)
{
    bar->addSubview(*label);
    EXPECT_EQ(desktop::peerOf(*button).accessible().role, AccessibleRole::None);
    bar->addSubview(*button);
    label->setHidden(true);
    EXPECT_EQ(desktop::peerOf(*button).accessible().role, AccessibleRole::None);
    label->setHidden(false);
    label->setFrame(CGRectMake(330, 0, 10, 10));
    EXPECT_EQ(desktop::peerOf(*button).accessible().role, AccessibleRole::None);
}

} // namespace

} // namespace brimsound::tests
