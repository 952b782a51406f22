#include "tests/unit/settings/PresetPane.h"

#include <gmock/gmock.h>

#include <array>

namespace brimsound::tests {

namespace {

using testing::Contains;
using testing::DoubleNear;

using Components = std::array<CGFloat, 4>;

Components componentsOf(const RetainPtr<UIColor>& color)
{
    Components components {};
    auto& [red, green, blue, alpha] = components;
    color->getRedGreenBlueAlpha(red, green, blue, alpha);
    return components;
}

const Components white { 1, 1, 1, 1 };
const Components black { 0, 0, 0, 1 };

/// The panel's views, by their position in the tree.
struct Views {
    explicit Views(const PresetPane& pane)
        : root(pane.root())
        , hideAll(*root.subviews()[0])
        , main(*root.subviews()[1])
        , cancel(*main.subviews()[0])
        , cancelLabel(static_cast<UILabel&>(*cancel.subviews()[0]))
        , cancelButton(static_cast<UIControl&>(*cancel.subviews()[1]))
        , backdrop(*main.subviews()[1])
        , field(static_cast<UITextField&>(*backdrop.subviews()[0]))
        , table(*main.subviews()[2])
    {
    }

    UIView& root;
    UIView& hideAll;
    UIView& main;
    UIView& cancel;
    UILabel& cancelLabel;
    UIControl& cancelButton;
    UIView& backdrop;
    UITextField& field;
    UIView& table;
};

class ThePanel : public testing::Test {
protected:
    TestPlatform platform;
};

TEST_F(ThePanel, IsPlacedOverTheTopmostViewBelowTheWindow)
{
    const PresetPane pane(platform);
    pane.showPresets();
    EXPECT_EQ(&pane.host(), &platform.topmostView());
    EXPECT_EQ(pane.host().subviews().back(), &pane.root());
    EXPECT_EQ(pane.root().frame(), pane.host().bounds());
}

TEST_F(ThePanel, IsCreatedOnceAndBroughtToTheFrontEachTime)
{
    const PresetPane pane(platform);
    pane.showPresets();
    auto* const first = &pane.panel();
    const auto other = make<UIView>();
    pane.host().addSubview(*other);
    pane.showPresets();
    EXPECT_EQ(&pane.panel(), first);
    EXPECT_EQ(pane.host().subviews().back(), &pane.root());
    other->removeFromSuperview();
}

TEST_F(ThePanel, HasThePaneForItsDelegate)
{
    const PresetPane pane(platform);
    pane.showPresets();
    EXPECT_EQ(pane.panel().delegate(), &pane.controller());
}

TEST_F(ThePanel, HasTheListInFrontOfTheNameStripAndTheCancelBar)
{
    const PresetPane pane(platform);
    pane.showPresets();
    const Views views(pane);
    ASSERT_EQ(views.root.subviews().size(), 2u);
    ASSERT_EQ(views.main.subviews().size(), 3u);
    EXPECT_EQ(&views.main, pane.panel().mainView());
    EXPECT_EQ(&views.cancel, pane.panel().cancelView());
    EXPECT_EQ(&views.table, pane.panel().tableView());
    EXPECT_EQ(&views.field, &pane.panel().nameField());
}

struct Layout {
    CGSize host;
    CGRect main;
};

void PrintTo(const Layout& layout, std::ostream* out)
{
    *out << layout.host.width << " points wide";
}

class ThePanelOnAHost : public testing::TestWithParam<Layout> {
protected:
    TestPlatform platform;
};

/// Expects the frames of the panel's views for a host of that size while it shows its list.
void expectLaidOut(const PresetPane& pane, const Layout& layout)
{
    const auto& [host, main] = layout;
    const Views views(pane);
    const auto width = main.size.width;
    const auto height = main.size.height;
    EXPECT_EQ(views.root.frame(), CGRectMake(0, 0, host.width, host.height));
    EXPECT_EQ(views.hideAll.frame(), CGRectMake(0, 0, host.width, host.height));
    EXPECT_EQ(views.main.frame(), main);
    EXPECT_EQ(views.cancel.frame(), CGRectMake(0, height - 44, width, 44));
    EXPECT_EQ(views.cancelLabel.frame(), CGRectMake(0, 0, width, 44));
    EXPECT_EQ(views.cancelButton.frame(), CGRectMake(0, 0, host.width, 88));
    EXPECT_EQ(views.backdrop.frame(), CGRectMake(0, 0, width, 44));
    EXPECT_EQ(views.field.frame(), CGRectMake(20, 8, width - 40, 28));
    EXPECT_EQ(views.table.frame(), CGRectMake(0, 0, width, height - 44));
}

TEST_P(ThePanelOnAHost, HasItsFramesByTheHostsSize)
{
    const PresetPane pane(platform, GetParam().host);
    pane.showPresets();
    expectLaidOut(pane, GetParam());
}

TEST_P(ThePanelOnAHost, HasThemAtASecondShowingToo)
{
    const PresetPane pane(platform, { 260, 400 });
    pane.showPresets();
    pane.panel().hideEverything();
    // Removed from the host, so that its size does not change automatically.
    pane.root().removeFromSuperview();
    platform.resizeWindow(GetParam().host);
    pane.showPresets();
    expectLaidOut(pane, GetParam());
}

TEST_P(ThePanelOnAHost, FollowsItWhileItIsShown)
{
    for (const CGSize before : { CGSize { 200, 300 }, { 320, 568 }, { 900, 700 } }) {
        const PresetPane pane(platform, before);
        pane.showPresets();
        platform.resizeWindow(GetParam().host);
        expectLaidOut(pane, GetParam());
        EXPECT_EQ(shownFrame(*pane.panel().mainView()), GetParam().main) << "at once";
        EXPECT_EQ(pane.root().alpha(), 1);
    }
}

TEST_P(ThePanelOnAHost, FollowsItWhileItFades)
{
    const PresetPane pane(platform, { 900, 700 });
    pane.showPresets();
    pane.panel().hideEverything();
    platform.passTime(0.25);
    const auto alpha = shownAlpha(pane.root());
    platform.resizeWindow(GetParam().host);
    expectLaidOut(pane, GetParam());
    EXPECT_EQ(shownAlpha(pane.root()), alpha);
    platform.passTime(0.26);
    EXPECT_EQ(shownAlpha(pane.root()), 0);
}

TEST_P(ThePanelOnAHost, FollowsItDuringNameEntry)
{
    const PresetPane pane(platform, { 900, 700 });
    pane.showPresets();
    pane.panel().tableViewDidSelectRowAtIndexPath(pane.list(), { 0, 0 });
    pane.panel().nameField().setText("New");
    // Once during the collapse animation, once after it.
    platform.passTime(0.1);
    for (const CGSize host : { CGSize { 500, 400 }, GetParam().host }) {
        platform.resizeWindow(host);
        const Views views(pane);
        const auto width = std::min(host.width - 88, 232.0);
        const auto main = CGRectMake((host.width - width) / 2, 44, width, 88);
        EXPECT_EQ(views.root.frame(), CGRectMake(0, 0, host.width, host.height));
        EXPECT_EQ(views.hideAll.frame(), views.root.frame());
        EXPECT_EQ(views.main.frame(), main);
        EXPECT_EQ(shownFrame(views.main), main) << "at once";
        EXPECT_EQ(views.cancel.frame(), CGRectMake(0, 44, width, 44));
        EXPECT_EQ(views.cancelLabel.frame(), CGRectMake(0, 0, width, 44));
        EXPECT_EQ(views.backdrop.frame(), CGRectMake(0, 0, width, 44));
        EXPECT_EQ(views.field.frame(), CGRectMake(20, 8, width - 40, 28));
        EXPECT_EQ(views.table.frame(), CGRectMake(0, 0, width, host.height - 132));
        EXPECT_TRUE(views.field.isFirstResponder());
        EXPECT_EQ(views.field.text(), "New");
        platform.passTime(1);
    }
}

INSTANTIATE_TEST_SUITE_P(OfEachWidth, ThePanelOnAHost,
    testing::Values(Layout { { 200, 480 }, CGRectMake(44, 44, 112, 392) },
        Layout { { 320, 568 }, CGRectMake(44, 44, 232, 480) },
        Layout { { 375, 667 }, CGRectMake(71.5, 44, 232, 579) },
        Layout { { 1024, 768 }, CGRectMake(396, 44, 232, 680) }));

TEST_F(ThePanel, KeepsItsPlaceInTheListAndTheSelectedRowWhenTheHostChanges)
{
    const PresetPane pane(platform);
    pane.showPresets();
    platform.layOut();
    pane.list().setContentOffset({ 0, 100 });
    platform.layOut();
    auto* const row = pane.list().cellForRowAtIndexPath({ 1, 4 });
    ASSERT_NE(row, nullptr);
    row->setSelected(true, Animated::No);
    platform.resizeWindow({ 900, 568 });
    EXPECT_EQ(pane.list().contentOffset(), (CGPoint { 0, 100 }));
    EXPECT_EQ(pane.list().cellForRowAtIndexPath({ 1, 4 }), row);
    EXPECT_TRUE(row->isSelected());
}

TEST_F(ThePanel, IsLaidOutAgainOnlyForAnotherSize)
{
    const PresetPane pane(platform);
    pane.showPresets();
    platform.layOut();
    const Views views(pane);
    views.main.setFrame(CGRectMake(1, 2, 3, 4));
    views.root.setNeedsLayout();
    platform.layOut();
    EXPECT_EQ(views.main.frame(), CGRectMake(1, 2, 3, 4));
}

class APaneInALowWindow : public testing::TestWithParam<CGSize> {
protected:
    TestPlatform platform;
};

TEST_P(APaneInALowWindow, ShowsThePresetsWithoutScrolling)
{
    const PresetPane pane(platform, GetParam());
    ASSERT_EQ(pane.controller().sliders(), nullptr) << "the slider row is out of view";
    auto& table = pane.controller().table();
    pane.showPresets();
    platform.layOut();
    EXPECT_EQ(table.contentOffset(), CGPoint());
    EXPECT_EQ(&pane.host(), &platform.topmostView());
    EXPECT_EQ(pane.root().alpha(), 1);
    ASSERT_NE(pane.controller().sliders(), nullptr);

    // When it scrolls into view, the row is the one that was built before.
    table.setContentOffset(table.rectForRowAtIndexPath(sliderRow).origin);
    platform.layOut();
    const auto* cell = table.cellForRowAtIndexPath(sliderRow);
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(pane.controller().blackBar()->superview(), &cell->contentView());
    EXPECT_EQ(pane.slider(3).frame().size.width, cell->contentView().frame().size.width - 40);
}

TEST_P(APaneInALowWindow, ShowsThemWhenTheRowWasScrolledAway)
{
    const PresetPane pane(platform, GetParam());
    auto& table = pane.controller().table();
    table.setContentOffset(table.rectForRowAtIndexPath(sliderRow).origin);
    platform.layOut();
    ASSERT_NE(pane.controller().sliders(), nullptr);
    table.setContentOffset({});
    platform.layOut();
    ASSERT_EQ(table.cellForRowAtIndexPath(sliderRow), nullptr);
    pane.showPresets();
    EXPECT_EQ(table.contentOffset(), CGPoint());
    EXPECT_EQ(&pane.host(), &platform.topmostView());
    EXPECT_EQ(pane.controller().sliders()->size(), 11u);
}

INSTANTIATE_TEST_SUITE_P(
    OfEachSize, APaneInALowWindow, testing::Values(CGSize { 568, 120 }, CGSize { 320, 100 }));

TEST_F(ThePanel, IsBuiltForTheScreenAndHidden)
{
    const PresetPane pane(platform);
    const auto panel = make<PlaylistSaver>(pane.controller());
    EXPECT_EQ(panel->view().frame(), CGRectMake(0, 0, 320, 568));
    EXPECT_EQ(panel->view().alpha(), 0);
    EXPECT_EQ(panel->mainView()->frame(), CGRectMake(44, 44, 232, 480));
    EXPECT_EQ(panel->tableView()->frame(), CGRectMake(0, 0, 232, 436));
    EXPECT_EQ(panel->cancelView()->frame(), CGRectMake(0, 436, 232, 44));
    panel->setDelegate(nullptr);
}

TEST_F(ThePanel, HasItsColorsAndFonts)
{
    const PresetPane pane(platform);
    pane.showPresets();
    const Views views(pane);
    EXPECT_EQ(componentsOf(views.root.backgroundColor()), (Components { 0, 0, 0, 0.7 }));
    EXPECT_EQ(views.root.alpha(), 1);
    EXPECT_EQ(views.main.layer().cornerRadius(), 20);
    EXPECT_TRUE(views.main.clipsToBounds());
    EXPECT_FALSE(views.main.backgroundColor());
    EXPECT_EQ(componentsOf(views.cancel.backgroundColor()), black);
    EXPECT_EQ(views.cancelLabel.text(), "Cancel");
    EXPECT_EQ(views.cancelLabel.textAlignment(), NSTextAlignment::Center);
    EXPECT_EQ(views.cancelLabel.font()->fontName(), "HelveticaNeue-Bold");
    EXPECT_EQ(views.cancelLabel.font()->pointSize(), 18);
    EXPECT_EQ(componentsOf(views.cancelLabel.textColor()), white);
    EXPECT_EQ(componentsOf(views.cancelLabel.backgroundColor())[3], 0);
    EXPECT_EQ(componentsOf(views.backdrop.backgroundColor()), white);
    EXPECT_TRUE(views.backdrop.isHidden());
    EXPECT_EQ(views.backdrop.alpha(), 0);
    EXPECT_EQ(views.field.font()->fontName(), "HelveticaNeue-Bold");
    EXPECT_EQ(views.field.font()->pointSize(), 18);
    EXPECT_EQ(componentsOf(views.field.textColor()), black);
    EXPECT_EQ(views.field.keyboardAppearance(), UIKeyboardAppearance::Dark);
    EXPECT_EQ(views.field.accessibilityLabel(), "Name");
    EXPECT_EQ(pane.list().accessibilityLabel(), "Presets");
    EXPECT_EQ(views.field.returnKeyType(), UIReturnKeyType::Done);
    EXPECT_EQ(views.field.autocapitalizationType(), UITextAutocapitalizationType::Words);
    EXPECT_EQ(componentsOf(pane.list().separatorColor())[3], 0);
}

TEST_F(ThePanel, IsShownAtOnceFromItsTop)
{
    const PresetPane pane(platform);
    pane.showPresets();
    platform.layOut();
    pane.list().setContentOffset({ 0, 100 });
    platform.layOut();
    ASSERT_EQ(pane.list().contentOffset(), (CGPoint { 0, 100 }));
    pane.panel().hideEverything();
    pane.showPresets();
    EXPECT_EQ(pane.list().contentOffset(), CGPoint());
    EXPECT_EQ(pane.root().alpha(), 1);
    EXPECT_EQ(shownAlpha(pane.root()), 1);
    EXPECT_TRUE(pane.root().isUserInteractionEnabled());
}

TEST_F(ThePanel, FadesOverHalfASecondAndIgnoresTouchesMeanwhile)
{
    const PresetPane pane(platform);
    pane.showPresets();
    pane.panel().hideEverything();
    EXPECT_FALSE(pane.root().isUserInteractionEnabled());
    EXPECT_EQ(pane.root().alpha(), 0);
    EXPECT_EQ(shownAlpha(pane.root()), 1);
    platform.passTime(0.25);
    EXPECT_THAT(shownAlpha(pane.root()), DoubleNear(0.5, 0.05));
    platform.passTime(0.2);
    EXPECT_GT(shownAlpha(pane.root()), 0);
    platform.passTime(0.06);
    EXPECT_EQ(shownAlpha(pane.root()), 0);
    EXPECT_EQ(pane.root().superview(), &platform.topmostView()) << "it stays in the view tree";
}

TEST_F(ThePanel, ShownWhileItFadesIsFullyVisibleAtOnce)
{
    const PresetPane pane(platform);
    pane.showPresets();
    pane.panel().hideEverything();
    platform.passTime(0.25);
    pane.showPresets();
    EXPECT_EQ(shownAlpha(pane.root()), 1);
    EXPECT_TRUE(pane.root().isUserInteractionEnabled());
    platform.passTime(1);
    EXPECT_EQ(shownAlpha(pane.root()), 1);
}

TEST_F(ThePanel, ClosesWhenTheDimmedAreaIsTouchedDown)
{
    const PresetPane pane(platform);
    pane.showPresets();
    auto& button = static_cast<UIControl&>(Views(pane).hideAll);
    button.sendActionsForControlEvents(UIControlEventTouchUpInside | UIControlEventTouchUpOutside);
    EXPECT_EQ(pane.root().alpha(), 1);
    button.sendActionsForControlEvents(UIControlEventTouchDown);
    EXPECT_EQ(pane.root().alpha(), 0);
}

class TheCancelBar : public ThePanel {
protected:
    static void expectPressed(const Views& views)
    {
        EXPECT_EQ(componentsOf(views.cancel.backgroundColor()), white);
        EXPECT_EQ(componentsOf(views.cancelLabel.textColor()), black);
    }
    static void expectReleased(const Views& views)
    {
        EXPECT_EQ(componentsOf(views.cancel.backgroundColor()), black);
        EXPECT_EQ(componentsOf(views.cancelLabel.textColor()), white);
    }
};

TEST_F(TheCancelBar, TurnsWhiteUnderAFingerAndClosesThePanelOnRelease)
{
    const PresetPane pane(platform);
    pane.showPresets();
    const Views views(pane);
    views.cancelButton.sendActionsForControlEvents(UIControlEventTouchDown);
    expectPressed(views);
    EXPECT_EQ(pane.root().alpha(), 1);
    views.cancelButton.sendActionsForControlEvents(UIControlEventTouchUpInside);
    expectReleased(views);
    EXPECT_EQ(pane.root().alpha(), 0);
}

TEST_F(TheCancelBar, ReleasedOutsideKeepsThePanel)
{
    const PresetPane pane(platform);
    pane.showPresets();
    const Views views(pane);
    views.cancelButton.sendActionsForControlEvents(UIControlEventTouchDown);
    views.cancelButton.sendActionsForControlEvents(UIControlEventTouchUpOutside);
    expectReleased(views);
    EXPECT_EQ(pane.root().alpha(), 1);
}

TEST_F(TheCancelBar, KeepsItsPressedLookAfterACanceledTouchUntilThePanelHides)
{
    const PresetPane pane(platform);
    pane.showPresets();
    const Views views(pane);
    views.cancelButton.sendActionsForControlEvents(UIControlEventTouchDown);
    views.cancelButton.sendActionsForControlEvents(UIControlEventTouchCancel);
    expectPressed(views);
    pane.panel().touchUpCancel();
    views.cancelButton.sendActionsForControlEvents(UIControlEventTouchCancel);
    expectPressed(views);
    EXPECT_EQ(pane.root().alpha(), 1);
    pane.panel().hideEverything();
    expectReleased(views);
}

class NameEntry : public ThePanel {
protected:
    static void begin(const PresetPane& pane)
    {
        pane.panel().tableViewDidSelectRowAtIndexPath(pane.list(), { 0, 0 });
    }
};

TEST_F(NameEntry, CollapsesThePanelToTheNameAndTheCancelBar)
{
    const PresetPane pane(platform);
    pane.showPresets();
    platform.layOut();
    auto* row = pane.list().cellForRowAtIndexPath({ 0, 0 });
    row->setSelected(true, Animated::No);
    begin(pane);
    const Views views(pane);
    EXPECT_FALSE(row->isSelected());
    EXPECT_TRUE(views.field.isFirstResponder());
    EXPECT_EQ(views.field.text(), "");
    EXPECT_EQ(views.main.frame(), CGRectMake(44, 44, 232, 88));
    EXPECT_EQ(views.cancel.frame(), CGRectMake(0, 44, 232, 44));
    EXPECT_EQ(views.table.alpha(), 0);
    EXPECT_EQ(views.backdrop.alpha(), 1);
    EXPECT_FALSE(views.backdrop.isHidden());
    EXPECT_EQ(pane.root().alpha(), 1);
}

TEST_F(NameEntry, TakesAFifthOfASecondToShow)
{
    const PresetPane pane(platform);
    pane.showPresets();
    begin(pane);
    const Views views(pane);
    EXPECT_EQ(shownFrame(views.main), CGRectMake(44, 44, 232, 480));
    EXPECT_EQ(shownAlpha(views.backdrop), 0);
    EXPECT_EQ(shownAlpha(views.table), 1);
    platform.passTime(0.1);
    EXPECT_THAT(shownFrame(views.main).size.height, DoubleNear(284, 25));
    EXPECT_THAT(shownFrame(views.cancel).origin.y, DoubleNear(240, 25));
    EXPECT_THAT(shownAlpha(views.backdrop), DoubleNear(0.5, 0.1));
    platform.passTime(0.05);
    EXPECT_NE(shownFrame(views.main), views.main.frame());
    platform.passTime(0.06);
    EXPECT_EQ(shownFrame(views.main), views.main.frame());
    EXPECT_EQ(shownFrame(views.cancel), views.cancel.frame());
    EXPECT_EQ(shownAlpha(views.backdrop), 1);
    EXPECT_EQ(shownAlpha(views.table), 0);
}

TEST_F(NameEntry, EndsWithReturn)
{
    const PresetPane pane(platform);
    pane.showPresets();
    begin(pane);
    pane.panel().nameField().setText("New");
    EXPECT_FALSE(pane.panel().textFieldShouldReturn(&pane.panel().nameField()));
    EXPECT_FALSE(pane.panel().nameField().isFirstResponder());
    EXPECT_EQ(pane.root().alpha(), 0);
    EXPECT_THAT(pane.names(), Contains("New"));
}

TEST_F(NameEntry, EndsWithTheCancelBarAndSavesNothing)
{
    const PresetPane pane(platform);
    pane.showPresets();
    begin(pane);
    pane.panel().nameField().setText("New");
    Views(pane).cancelButton.sendActionsForControlEvents(UIControlEventTouchUpInside);
    EXPECT_FALSE(pane.panel().nameField().isFirstResponder());
    EXPECT_EQ(pane.root().alpha(), 0);
    EXPECT_EQ(platform.preferencesFile(), "");
}

TEST_F(NameEntry, LosesTheKeyboardWhenTheCancelBarIsReleasedOutside)
{
    const PresetPane pane(platform);
    pane.showPresets();
    begin(pane);
    Views(pane).cancelButton.sendActionsForControlEvents(UIControlEventTouchUpOutside);
    EXPECT_FALSE(pane.panel().nameField().isFirstResponder());
    EXPECT_EQ(pane.root().alpha(), 1);
}

TEST_F(NameEntry, LeavesNothingBehindForTheNextShowing)
{
    const PresetPane pane(platform);
    pane.showPresets();
    begin(pane);
    pane.panel().nameField().setText("New");
    platform.passTime(0.1);
    pane.panel().hideEverything();
    pane.showPresets();
    const Views views(pane);
    EXPECT_EQ(views.field.text(), "");
    EXPECT_EQ(views.main.frame(), CGRectMake(44, 44, 232, 480));
    EXPECT_EQ(shownFrame(views.main), views.main.frame());
    EXPECT_EQ(views.cancel.frame(), CGRectMake(0, 436, 232, 44));
    EXPECT_EQ(shownFrame(views.cancel), views.cancel.frame());
    EXPECT_EQ(views.table.frame(), CGRectMake(0, 0, 232, 436));
    EXPECT_EQ(shownAlpha(views.table), 1);
    EXPECT_TRUE(views.backdrop.isHidden());
    EXPECT_EQ(shownAlpha(views.backdrop), 0);
}

TEST_F(ThePanel, ReleasesItsViewsWhenTheyAreUnloaded)
{
    const PresetPane pane(platform);
    pane.showPresets();
    auto& panel = pane.panel();
    const auto root = retain(&pane.root());
    panel.viewDidUnload();
    EXPECT_EQ(panel.tableView(), nullptr);
    EXPECT_EQ(panel.mainView(), nullptr);
    EXPECT_EQ(panel.cancelView(), nullptr);
    EXPECT_EQ(panel.delegate(), nullptr);
    EXPECT_TRUE(panel.presetDict().empty());
    EXPECT_NE(&panel.view(), root.get());
    EXPECT_EQ(root->superview(), nullptr);
    // Later calls have no views to act on.
    panel.showEverything();
    panel.hideEverything();
    panel.touchDownCancel();
    panel.touchUpCancel();

    pane.showPresets();
    EXPECT_EQ(pane.names().size(), 16u) << "in a new panel";
}

TEST_F(ThePanel, RemovesItsRootViewWhenItIsDestroyed)
{
    const PresetPane pane(platform);
    auto panel = make<PlaylistSaver>(pane.controller());
    const auto root = retain(&panel->view());
    pane.controller().table().addSubview(*root);
    panel = nullptr;
    EXPECT_EQ(root->superview(), nullptr);
}

TEST_F(ThePanel, RetainsItsDelegate)
{
    const auto delegate = make<NSObject>();
    {
        const auto panel = make<PlaylistSaver>(*delegate);
        EXPECT_EQ(delegate->retainCount(), 2u);
        EXPECT_EQ(panel->buttonPosition(), CGPoint());
        EXPECT_EQ(panel->buttonSize(), CGSize());
        panel->setButtonPosition({ 1, 2 });
        panel->setButtonSize({ 3, 4 });
        EXPECT_EQ(panel->buttonPosition(), (CGPoint { 1, 2 }));
        EXPECT_EQ(panel->buttonSize(), (CGSize { 3, 4 }));
    }
    EXPECT_EQ(delegate->retainCount(), 1u);
}

} // namespace

} // namespace brimsound::tests
