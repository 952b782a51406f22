#include "platform/desktop/Preferences/SpecifierCell.h"
#include "platform/desktop/UIKit/HostedView.h"
#include "tests/support/EnvironmentVariable.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace brimsound::tests {

namespace {

using desktop::nativeView;
using desktop::SpecifierCell;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using toolkit::Window;

using Properties = PropertyList::Dictionary;

/// A pane with the test's specifiers that records its calls.
class TestPane : public PSListController {
public:
    TestPane()
        : PSListController("TestPane")
    {
    }

    void show(const std::vector<Properties>& items)
    {
        _specifiers.emplace();
        for (const auto& properties : items) {
            const auto* label = properties.find("label");
            const auto name = label ? *label->asString() : std::string();
            _specifiers->push_back(make<PSSpecifier>(name, *this, properties));
        }
    }

    PropertyList readPreferenceValue(PSSpecifier& specifier) override
    {
        calls.push_back("read " + specifier.name());
        return PSListController::readPreferenceValue(specifier);
    }
    void setPreferenceValueSpecifier(const PropertyList& value, PSSpecifier& specifier) override
    {
        calls.push_back("store " + specifier.name() + (value.boolValue() ? " on" : " off"));
    }

    std::span<const Method> methods() const override
    {
        static const std::array table {
            method<&TestPane::loud>("loud"),
            method<&TestPane::setLoud>("setLoud:specifier:"),
            method<&TestPane::valueFor>("valueFor:"),
            method<&TestPane::open>("open:"),
        };
        return table;
    }

    std::vector<std::string> calls;
    bool isLoud = false;

private:
    PropertyList loud()
    {
        calls.emplace_back("loud");
        return isLoud;
    }
    void setLoud(const PropertyList& value, PSSpecifier& specifier)
    {
        isLoud = value.boolValue();
        calls.push_back("setLoud " + specifier.name() + (isLoud ? " on" : " off"));
    }
    PropertyList valueFor(PSSpecifier& specifier)
    {
        calls.push_back("valueFor " + specifier.name());
        return true;
    }
    void open(PSSpecifier& specifier) { calls.push_back("open " + specifier.name()); }
};

Properties item(const std::string& cell, const std::string& label, Properties more = {})
{
    more.set("cell", cell);
    more.set("label", label);
    return more;
}

Properties group(const std::string& label, Properties more = {})
{
    return item("PSGroupCell", label, std::move(more));
}

Properties toggle(const std::string& label, Properties more = {})
{
    return item("PSSwitchCell", label, std::move(more));
}

/// A pane in a window.
class APane : public testing::Test {
protected:
    APane()
    {
        pane->initForContentSize(size);
        window->add(nativeView(pane->table()));
    }

    void show(const std::vector<Properties>& items) const
    {
        pane->show(items);
        pane->table().reloadData();
        window->layOutAll();
    }

    SpecifierCell& cell(std::size_t section, std::size_t row) const
    {
        auto* found = dynamic_cast<SpecifierCell*>(pane->table().cellForRowAtIndexPath({ section, row }));
        if (!found)
            throw std::runtime_error("no such row is on view");
        return *found;
    }

    void tap(const toolkit::View& view) const
    {
        const auto middle = view.toWindow(view.bounds().middle());
        window->touchDown({ middle });
        window->touchUp(middle);
    }
    void tap(const UIView& view) const { tap(nativeView(view)); }

    static constexpr CGSize size { 320, 568 };

    const toolkit::Ref<Window> window = toolkit::make<Window>(desktop::toolkitSize(size));
    const RetainPtr<TestPane> pane = make<TestPane>();
};

TEST_F(APane, AcceptsAnyValidSize)
{
    EXPECT_EQ(pane->initForContentSize({ 0, 0 }), pane.get());
    EXPECT_EQ(pane->initForContentSize({ 1024, 768 }), pane.get());
    EXPECT_EQ(pane->initForContentSize({ -1, 100 }), nullptr);
    EXPECT_EQ(pane->initForContentSize({ 100, std::nan("") }), nullptr);
    EXPECT_EQ(pane->initForContentSize({ std::numeric_limits<double>::infinity(), 100 }), nullptr);
}

TEST_F(APane, HasOneTableOfItsContentsSize)
{
    EXPECT_EQ(&pane->table(), &pane->table());
    EXPECT_EQ(pane->table().bounds().size, size);
}

TEST_F(APane, WithoutSpecifiersIsEmpty)
{
    window->layOutAll();
    EXPECT_THAT(pane->specifiers(), IsEmpty());
    EXPECT_EQ(pane->numberOfSectionsInTableView(pane->table()), 0u);
}

TEST_F(APane, MakesASectionOfEveryGroupAndARowOfEveryOtherSpecifier)
{
    show({ group("A", { { "footerText", "below A" } }), toggle("1"), toggle("2"), group(""), group("C"),
        item("PSButtonCell", "3") });
    auto& table = pane->table();
    ASSERT_EQ(pane->numberOfSectionsInTableView(table), 3u);
    EXPECT_EQ(pane->tableViewNumberOfRowsInSection(table, 0), 2u);
    EXPECT_EQ(pane->tableViewNumberOfRowsInSection(table, 1), 0u);
    EXPECT_EQ(pane->tableViewNumberOfRowsInSection(table, 2), 1u);
    EXPECT_EQ(pane->tableViewTitleForHeaderInSection(table, 0), "A");
    EXPECT_EQ(pane->tableViewTitleForFooterInSection(table, 0), "below A");
    EXPECT_EQ(pane->tableViewTitleForHeaderInSection(table, 1), "");
    EXPECT_EQ(pane->tableViewTitleForHeaderInSection(table, 2), "C");
    EXPECT_EQ(pane->tableViewTitleForFooterInSection(table, 2), "");
    EXPECT_EQ(cell(0, 1).textLabel().text(), "2");
    EXPECT_EQ(cell(2, 0).textLabel().text(), "3");
}

TEST_F(APane, PutsRowsBeforeTheFirstGroupIntoASectionOfTheirOwn)
{
    show({ toggle("1"), group("A"), toggle("2") });
    auto& table = pane->table();
    ASSERT_EQ(pane->numberOfSectionsInTableView(table), 2u);
    EXPECT_EQ(pane->tableViewTitleForHeaderInSection(table, 0), "");
    EXPECT_EQ(pane->tableViewTitleForFooterInSection(table, 0), "");
    EXPECT_EQ(cell(0, 0).textLabel().text(), "1");
    EXPECT_EQ(cell(1, 0).textLabel().text(), "2");
}

TEST_F(APane, ShowsATextRowForAnUnknownKind)
{
    show({ item("PSStaticTextCell", "text", { { "action", "open:" } }), { { "label", "bare" } } });
    EXPECT_EQ(cell(0, 0).textLabel().text(), "text");
    EXPECT_EQ(cell(0, 0).toggle(), nullptr);
    EXPECT_EQ(cell(0, 1).textLabel().text(), "bare");
    tap(cell(0, 0));
    EXPECT_THAT(pane->calls, IsEmpty());
}

using ASwitchRow = APane;

TEST_F(ASwitchRow, ShowsTheResultOfItsGetter)
{
    pane->isLoud = true;
    show({ toggle("a", { { "get", "loud" }, { "default", false } }) });
    EXPECT_TRUE(cell(0, 0).toggle()->isOn());
    EXPECT_THAT(pane->calls, ElementsAre("loud"));
    pane->isLoud = false;
    pane->table().reloadData();
    window->layOutAll();
    EXPECT_FALSE(cell(0, 0).toggle()->isOn());
}

TEST_F(ASwitchRow, PassesItsSpecifierToTheGetter)
{
    show({ toggle("a", { { "get", "valueFor:" } }), toggle("b", { { "get", "valueFor:" } }) });
    EXPECT_TRUE(cell(0, 0).toggle()->isOn());
    EXPECT_THAT(pane->calls, ElementsAre("valueFor a", "valueFor b"));
}

TEST_F(ASwitchRow, ShowsItsDefaultWithoutAGetter)
{
    show({ toggle("on", { { "get", "missing" }, { "default", true } }),
        toggle("off", { { "get", "missing" }, { "default", false } }),
        toggle("none", { { "get", "missing" } }) });
    EXPECT_TRUE(cell(0, 0).toggle()->isOn());
    EXPECT_FALSE(cell(0, 1).toggle()->isOn());
    EXPECT_FALSE(cell(0, 2).toggle()->isOn());
    EXPECT_THAT(pane->calls, IsEmpty());
}

TEST_F(ASwitchRow, CallsItsSetterWithTheValueAndTheSpecifierWhenItIsFlipped)
{
    show({ toggle("a", { { "get", "loud" }, { "set", "setLoud:specifier:" } }) });
    pane->calls.clear();
    tap(*cell(0, 0).toggle());
    EXPECT_THAT(pane->calls, ElementsAre("setLoud a on"));
    tap(*cell(0, 0).toggle());
    EXPECT_THAT(pane->calls, ElementsAre("setLoud a on", "setLoud a off"));
}

TEST_F(ASwitchRow, StoresNothingWithoutASetter)
{
    show({ toggle("a", { { "get", "loud" }, { "set", "missing:" } }) });
    pane->calls.clear();
    tap(*cell(0, 0).toggle());
    EXPECT_TRUE(cell(0, 0).toggle()->isOn());
    EXPECT_THAT(pane->calls, IsEmpty());
}

TEST_F(ASwitchRow, IsReadAndWrittenByTheControllerWhenItNamesNoSelectors)
{
    show({ toggle("a", { { "default", true } }) });
    EXPECT_TRUE(cell(0, 0).toggle()->isOn());
    EXPECT_THAT(pane->calls, ElementsAre("read a"));
    tap(*cell(0, 0).toggle());
    EXPECT_THAT(pane->calls, ElementsAre("read a", "store a off"));
}

TEST_F(ASwitchRow, IsNotSelectedByATapNextToTheSwitch)
{
    show({ toggle("a", { { "action", "open:" } }) });
    pane->calls.clear();
    tap(cell(0, 0).textLabel());
    EXPECT_FALSE(cell(0, 0).toggle()->isOn());
    EXPECT_THAT(pane->calls, IsEmpty());
}

TEST_F(ASwitchRow, SetsTheSpecifierThatItShowsNow)
{
    show({ toggle("a", { { "get", "valueFor:" } }) });
    show({ toggle("b", { { "default", false } }) });
    EXPECT_FALSE(cell(0, 0).toggle()->isOn());
    pane->calls.clear();
    tap(*cell(0, 0).toggle());
    EXPECT_THAT(pane->calls, ElementsAre("store b on"));
}

using AButtonRow = APane;

TEST_F(AButtonRow, SendsItsActionWithItsSpecifierAndSoDoesALink)
{
    show({ item("PSButtonCell", "button", { { "action", "open:" } }),
        item("PSLinkCell", "link", { { "action", "open:" } }) });
    tap(cell(0, 0));
    EXPECT_THAT(pane->calls, ElementsAre("open button"));
    tap(cell(0, 1));
    EXPECT_THAT(pane->calls, ElementsAre("open button", "open link"));
}

TEST_F(AButtonRow, DoesNothingWithoutAnImplementedAction)
{
    show({ item("PSButtonCell", "a", { { "action", "missing:" } }), item("PSButtonCell", "b") });
    tap(cell(0, 0));
    tap(cell(0, 1));
    EXPECT_THAT(pane->calls, IsEmpty());
}

TEST_F(AButtonRow, SendsItsActionToTheTargetOfItsSpecifier)
{
    const auto other = make<TestPane>();
    other->show({ item("PSButtonCell", "b", { { "action", "open:" } }) });
    pane->show({});
    class Borrowing : public TestPane {
    public:
        explicit Borrowing(const Specifiers& specifiers) { _specifiers = specifiers; }
    };
    const auto borrowing = make<Borrowing>(other->specifiers());
    borrowing->tableViewDidSelectRowAtIndexPath(borrowing->table(), { 0, 0 });
    EXPECT_THAT(borrowing->calls, IsEmpty());
    EXPECT_THAT(other->calls, ElementsAre("open b"));
}

TEST(APaneThatIsGone, LeavesAnEmptyTableBehind)
{
    const auto window = toolkit::make<Window>(toolkit::Size { 320, 568 });
    auto pane = make<TestPane>();
    pane->initForContentSize({ 320, 568 });
    pane->show({ toggle("a"), item("PSButtonCell", "b", { { "action", "open:" } }) });
    window->add(nativeView(pane->table()));
    window->layOutAll();
    pane = nullptr;
    window->touchDown({ { 100, 60 } });
    window->touchUp({ 100, 60 });
    window->layOutAll();
    EXPECT_THAT(window->children().front()->children(), IsEmpty());
}

class ASpecifierPlist : public testing::Test {
protected:
    PSListController::Specifiers load(const std::string& name) const
    {
        return pane->loadSpecifiersFromPlistNameTarget(name, *target);
    }

    const EnvironmentVariable language { "LANGUAGE", "en" };
    const RetainPtr<TestPane> pane = make<TestPane>();
    const RetainPtr<NSObject> target = make<NSObject>();
};

TEST_F(ASpecifierPlist, ReturnsASpecifierForEveryValidItem)
{
    const auto specifiers = load("Pane");
    ASSERT_THAT(specifiers, SizeIs(3));
    EXPECT_EQ(*specifiers[1]->propertyForKey("cell").asString(), "PSSwitchCell");
    EXPECT_EQ(*specifiers[1]->propertyForKey("key").asString(), "SOUND");
    EXPECT_TRUE(specifiers[1]->propertyForKey("default").boolValue());
    EXPECT_FALSE(specifiers[1]->propertyForKey("missing").boolValue());
    EXPECT_EQ(&specifiers[1]->target(), target.get());
}

TEST_F(ASpecifierPlist, HasItsLabelsAndFootersLocalized)
{
    const auto specifiers = load("Pane");
    ASSERT_THAT(specifiers, SizeIs(3));
    EXPECT_EQ(specifiers[0]->name(), "Sound");
    EXPECT_EQ(*specifiers[0]->propertyForKey("label").asString(), "Sound");
    EXPECT_EQ(*specifiers[0]->propertyForKey("footerText").asString(), "What you hear.");
    EXPECT_EQ(specifiers[1]->name(), "Not in the table");
    EXPECT_EQ(specifiers[2]->name(), "");
}

TEST_F(ASpecifierPlist, DoesNotHaveItsOtherTextsLocalized)
{
    const auto specifiers = load("Pane");
    ASSERT_THAT(specifiers, SizeIs(3));
    EXPECT_EQ(*specifiers[1]->propertyForKey("key").asString(), "SOUND");
}

TEST_F(ASpecifierPlist, ThatIsMissingOrWithoutItemsReturnsNone)
{
    EXPECT_THAT(load("Missing"), IsEmpty());
    EXPECT_THAT(load("NoItems"), IsEmpty());
    EXPECT_THAT(load(""), IsEmpty());
}

} // namespace

} // namespace brimsound::tests
