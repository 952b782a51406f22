#include "settings/PlaylistSaver.h"

#include "platform/UIKit/UIScreen.h"
#include "settings/Localized.h"

#include <algorithm>

namespace brimsound {

namespace {

constexpr CGFloat margin = 44;
constexpr CGFloat widest = 232;
constexpr CGFloat barHeight = 44;
/// The height of the name strip and the cancel bar together.
constexpr CGFloat heightForNameEntry = 88;
constexpr CGFloat cornerRadius = 20;
constexpr double collapseTime = 0.2;
constexpr double fadeTime = 0.5;
constexpr CGFloat fieldMargin = 20;

CGFloat panelWidth(const CGRect& root)
{
    return std::min(root.size.width - 2 * margin, widest);
}

CGRect panelFrame(const CGRect& root)
{
    const auto width = panelWidth(root);
    return CGRectMake((root.size.width - width) * 0.5, margin, width, root.size.height - 2 * margin);
}

/// Much larger than the cancel bar on purpose; the panel's edges clip it.
CGRect cancelButtonFrame(const CGRect& root)
{
    return CGRectMake(0, 0, root.size.width, 88);
}

CGRect nameFieldFrame(CGFloat panelWidth)
{
    return CGRectMake(fieldMargin, 8, panelWidth - 2 * fieldMargin, 28);
}

RetainPtr<UIFont> boldFont()
{
    return UIFont::fontWithNameSize("HelveticaNeue-Bold", 18);
}

} // namespace

std::span<const Method> PlaylistSaver::methods() const
{
    using Self = PlaylistSaver;
    static const std::array table {
        method<&Self::showEverything>("showEverything"),
        method<&Self::hideEverything>("hideEverything:"),
        method<&Self::touchDownCancel>("touchDownCancel:"),
        method<&Self::touchUpCancel>("touchUpCancel:"),
    };
    return table;
}

PlaylistSaver::PlaylistSaver(PlaylistSaverDelegate& delegate)
    : _blackBarColor(UIColor::colorWithWhiteAlpha(0.15, 1))
    , _whiteBarColor(UIColor::colorWithWhiteAlpha(0.95, 1))
    , _delegate(brimsound::retain(&delegate))
{
    auto& root = view();
    root.setAlpha(0);
    root.setFrame({ {}, UIScreen::mainScreen().bounds().size });
    root.setAutoresizingMask(UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight);
    root.setBackgroundColor(UIColor::colorWithWhiteAlpha(0, 0.7));

    _hideAllButton = make<UIButton>(root.frame());
    _hideAllButton->addTargetActionForControlEvents(*this, "hideEverything:", UIControlEventTouchDown);
    root.addSubview(*_hideAllButton);

    _mainView = make<UIView>(panelFrame(root.frame()));
    _mainView->layer().setCornerRadius(cornerRadius);
    _mainView->setClipsToBounds(true);
    root.addSubview(*_mainView);

    buildCancelBar();

    const auto panel = _mainView->frame().size;
    _tableView
        = make<UITableView>(CGRectMake(0, 0, panel.width, panel.height - barHeight), UITableViewStyle::Plain);
    _tableView->setSeparatorColor(UIColor::clearColor());
    _tableView->setAccessibilityLabel(localized("Presets", "Presets"));
    _tableView->setDelegate(this);
    _tableView->setDataSource(this);

    buildNameStrip();
    _mainView->addSubview(*_tableView);
}

PlaylistSaver::~PlaylistSaver()
{
    // The presentation may keep these views longer than the panel exists.
    detachTable();
    newPlaylistField->setDelegate(nullptr);
    view().removeFromSuperview();
}

void PlaylistSaver::detachTable() const
{
    if (!_tableView)
        return;
    _tableView->setDataSource(nullptr);
    _tableView->setDelegate(nullptr);
}

void PlaylistSaver::viewDidUnload()
{
    UIViewController::viewDidUnload();
    detachTable();
    _tableView = nullptr;
    _delegate = nullptr;
    _mainView = nullptr;
    view().removeFromSuperview();
    setView(nullptr);
    _cancelView = nullptr;
    _plusImage = nullptr;
    _presetDict = {};
}

void PlaylistSaver::buildCancelBar()
{
    const auto panel = _mainView->frame().size;
    _cancelView = make<UIView>(CGRectMake(0, panel.height - barHeight, panel.width, barHeight));
    _cancelView->setBackgroundColor(UIColor::blackColor());
    _mainView->addSubview(*_cancelView);

    cancelLabel = make<UILabel>(CGRectMake(0, 0, panel.width, barHeight));
    cancelLabel->setText(localized("CANCEL", "Cancel"));
    cancelLabel->setTextAlignment(NSTextAlignment::Center);
    cancelLabel->setFont(boldFont());
    cancelLabel->setTextColor(UIColor::whiteColor());
    cancelLabel->setBackgroundColor(UIColor::clearColor());
    // It names the button over it.
    cancelLabel->setIsAccessibilityElement(false);
    _cancelView->addSubview(*cancelLabel);

    _cancelButton = make<UIButton>(cancelButtonFrame(view().frame()));
    _cancelButton->setAccessibilityLabel(cancelLabel->text());
    _cancelButton->addTargetActionForControlEvents(*this, "hideEverything:", UIControlEventTouchUpInside);
    _cancelButton->addTargetActionForControlEvents(*this, "touchUpCancel:", UIControlEventTouchUpOutside);
    _cancelButton->addTargetActionForControlEvents(
        *this, "touchDownCancel:", UIControlEventTouchDown | UIControlEventTouchCancel);
    _cancelView->addSubview(*_cancelButton);
}

void PlaylistSaver::buildNameStrip()
{
    const auto width = _mainView->frame().size.width;
    newPlaylistBackdrop = make<UIView>(CGRectMake(0, 0, width, barHeight));
    newPlaylistBackdrop->setBackgroundColor(UIColor::whiteColor());
    newPlaylistBackdrop->setHidden(true);
    newPlaylistBackdrop->setAlpha(0);
    _mainView->addSubview(*newPlaylistBackdrop);

    newPlaylistField = make<UITextField>(nameFieldFrame(width));
    newPlaylistField->setKeyboardAppearance(UIKeyboardAppearance::Dark);
    newPlaylistField->setFont(boldFont());
    newPlaylistField->setTextColor(UIColor::blackColor());
    newPlaylistField->setAccessibilityLabel(localized("NAME", "Name"));
    newPlaylistField->setDelegate(this);
    newPlaylistField->setReturnKeyType(UIReturnKeyType::Done);
    newPlaylistField->setAutocapitalizationType(UITextAutocapitalizationType::Words);
    newPlaylistBackdrop->addSubview(*newPlaylistField);
}

void PlaylistSaver::layOutForRootView()
{
    const auto root = view().frame();
    _hideAllButton->setFrame(root);
    _mainView->setFrame(panelFrame(root));
    const auto panel = _mainView->frame().size;
    cancelLabel->setFrame(CGRectMake(0, 0, panel.width, barHeight));
    _cancelButton->setFrame(cancelButtonFrame(root));
    _tableView->setFrame(CGRectMake(0, 0, panel.width, panel.height - barHeight));
    newPlaylistBackdrop->setFrame(CGRectMake(0, 0, panel.width, barHeight));
    newPlaylistField->setFrame(nameFieldFrame(panel.width));
    _cancelView->setFrame(CGRectMake(0, panel.height - barHeight, panel.width, barHeight));
}

void PlaylistSaver::viewDidLayoutSubviews()
{
    // Ignore layouts that are not due to a new size: they would interrupt an animation.
    if (!_mainView || _hideAllButton->frame().size == view().frame().size)
        return;
    const bool isCollapsed = !newPlaylistBackdrop->isHidden();
    layOutForRootView();
    if (isCollapsed)
        collapseForNameEntry();
}

void PlaylistSaver::collapseForNameEntry()
{
    auto panel = _mainView->frame();
    panel.size.height = heightForNameEntry;
    _mainView->setFrame(panel);
    auto bar = _cancelView->frame();
    bar.origin.y = barHeight;
    _cancelView->setFrame(bar);
}

void PlaylistSaver::showEverything()
{
    if (!_mainView)
        return;
    layOutForRootView();
    _tableView->setAlpha(1);
    newPlaylistBackdrop->setAlpha(0);
    newPlaylistBackdrop->setHidden(true);
    newPlaylistField->setText("");
    loadPresets();
    _tableView->setContentOffset({});
    _tableView->reloadData();
    view().setUserInteractionEnabled(true);
    view().setAlpha(1);
}

void PlaylistSaver::hideEverything(NSObject*)
{
    touchUpCancel();
    view().setUserInteractionEnabled(false);
    UIView::animateWithDurationAnimations(fadeTime, [this] { view().setAlpha(0); });
}

void PlaylistSaver::setCancelBarColors(RetainPtr<UIColor> bar, RetainPtr<UIColor> text)
{
    if (_cancelView)
        _cancelView->setBackgroundColor(std::move(bar));
    cancelLabel->setTextColor(std::move(text));
}

void PlaylistSaver::touchDownCancel(NSObject*)
{
    setCancelBarColors(UIColor::whiteColor(), UIColor::blackColor());
}

void PlaylistSaver::touchUpCancel(NSObject*)
{
    setCancelBarColors(UIColor::blackColor(), UIColor::whiteColor());
    newPlaylistField->resignFirstResponder();
}

void PlaylistSaver::beginNameEntry()
{
    newPlaylistBackdrop->setAlpha(0);
    newPlaylistBackdrop->setHidden(false);
    newPlaylistField->becomeFirstResponder();
    UIView::animateWithDurationAnimations(collapseTime, [this] {
        collapseForNameEntry();
        _tableView->setAlpha(0);
        newPlaylistBackdrop->setAlpha(1);
    });
}

} // namespace brimsound
