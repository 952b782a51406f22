#include "settings/BrimsoundSettings.h"

namespace brimsound {

namespace {

const UIView& rootOf(const UIView& view)
{
    return view.superview() ? rootOf(*view.superview()) : view;
}

/// The ancestor of the view that is a direct subview of the window.
UIView& topmostBelowWindow(UIView& view)
{
    auto* host = &view;
    while (host->superview() && host->superview()->superview())
        host = host->superview();
    return *host;
}

} // namespace

void BrimsoundSettingsListController::showPresets(NSObject*)
{
    // In a short window the table may not have asked for the slider row yet. It gets this cell when it does.
    if (!_sliders)
        _cellBuiltAhead = tableViewCellForRowAtIndexPath(table(), sliderRow);
    if (!_saver || !_saver->mainView())
        _saver = make<PlaylistSaver>(*this);
    _saver->setSliders({ _sliders->begin() + 1, _sliders->end() });

    // A row that is scrolled out of view is in no window, but its table is.
    const bool isOnView = &rootOf(*_blackBar) == &rootOf(table());
    auto& host = topmostBelowWindow(isOnView ? *_blackBar : table());
    auto& panel = _saver->view();
    host.addSubview(panel);
    panel.setFrame(host.bounds());
    _saver->showEverything();
}

void BrimsoundSettingsListController::playlistSaverSelectedPreset(PlaylistSaver&, const PropertyList& gains)
{
    if (!_sliders || _sliders->size() == 1 || gains.isNull())
        return;
    static const PropertyList::Array none;
    const auto& values = gains.asArray() ? *gains.asArray() : none;
    for (std::size_t i = 0; i + 1 < _sliders->size(); ++i) {
        auto& slider = *(*_sliders)[i + 1];
        slider.setValue(values.at(i).floatValue());
        slider.sendActionsForControlEvents(UIControlEventValueChanged);
        slider.sendActionsForControlEvents(UIControlEventTouchDragInside);
        slider.sendActionsForControlEvents(UIControlEventTouchUpInside);
    }
}

} // namespace brimsound
