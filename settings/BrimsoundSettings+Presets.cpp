#include "settings/BrimsoundSettings.h"

namespace brimsound {

namespace {

const UIView& rootOf(const UIView& view)
{
    return view.superview() ? rootOf(*view.superview()) : view;
}

/// The topmost view below the window that the view is in.
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
    // In a low window the slider row may be off view, and with it what the panel finds its place by.
    if (!_sliders || &rootOf(*_blackBar) != &rootOf(table())) {
        table().setContentOffset(table().rectForRowAtIndexPath(sliderRow).origin);
        table().layoutIfNeeded();
    }
    if (!_sliders)
        return;
    if (!_saver || !_saver->mainView())
        _saver = make<PlaylistSaver>(*this);
    _saver->setSliders({ _sliders->begin() + 1, _sliders->end() });

    auto& host = topmostBelowWindow(*_blackBar);
    auto& panel = _saver->view();
    host.addSubview(panel);
    panel.setFrame(host.bounds());
    _saver->showEverything();
}

void BrimsoundSettingsListController::playlistSaverSelectedPreset(PlaylistSaver&, const PropertyList& gains)
{
    if (!_sliders || _sliders->size() == 1)
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
