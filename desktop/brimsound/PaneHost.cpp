#include "desktop/brimsound/PaneHost.h"

#include "platform/desktop/Foundation/Localizations.h"
#include "platform/desktop/Preferences/RootController.h"
#include "platform/desktop/UIKit/Controller.h"
#include "platform/desktop/UIKit/HostedView.h"
#include "settings/Bundle.h"
#include "settings/Localized.h"
#include "toolkit/window/TitleBar.h"

#include <QLocale>

namespace brimsound::desktop {

namespace {

constexpr double barHeight = toolkit::TitleBar::height;

toolkit::LayoutDirection layoutDirection()
{
    const auto language = preferredLocalization(NSBundle::bundleForClass(controllerClassName));
    return QLocale(QString::fromStdString(language)).textDirection() == Qt::RightToLeft
        ? toolkit::LayoutDirection::RightToLeft
        : toolkit::LayoutDirection::LeftToRight;
}

/// Resizes its one child with the window.
class PaneWindow : public toolkit::Window {
public:
    using Window::Window;

    void layOut() override
    {
        for (const auto& view : children())
            view->setFrame(bounds());
    }
};

} // namespace

/// Fills the window: the title bar at the top, the pane's table below.
class PaneHost::RootView : public toolkit::View {
public:
    RootView()
        : _bar(toolkit::make<toolkit::TitleBar>(paneTitle()))
    {
        add(*_bar);
    }

    void setContent(toolkit::Ref<toolkit::View> content)
    {
        // This view may also contain a preset panel, which must not be above a new content view.
        for (const auto& view : std::vector(children())) {
            if (view != _bar.get())
                view->removeFromParent();
        }
        _content = std::move(content);
        if (_content)
            add(*_content);
    }

    void layOut() override
    {
        const auto [width, height] = frame().size;
        _bar->setFrame(toolkit::makeRect(0, 0, width, barHeight));
        if (_content)
            _content->setFrame(toolkit::makeRect(0, barHeight, width, std::max(0.0, height - barHeight)));
    }

private:
    toolkit::Ref<toolkit::TitleBar> _bar;
    toolkit::Ref<toolkit::View> _content;
};

std::string paneTitle()
{
    return localized("Brimsound", "Brimsound");
}

PaneHost::PaneHost(toolkit::Size size)
    : _window(toolkit::make<PaneWindow>(size, layoutDirection()))
    , _root(toolkit::make<RootView>())
    , _rootController(makeViewController(*_root))
{
    _window->add(*_root);
    open();
}

PaneHost::~PaneHost()
{
    // A touch that is still down when the program ends is not released, so nothing is saved for it.
    releasePane();
}

void PaneHost::open()
{
    if (_controller)
        return;
    const auto size = cgSize(_window->bounds().size);
    const auto controller = make<BrimsoundSettingsListController>();
    if (!controller->initForContentSize({ size.width, std::max(0.0, size.height - barHeight) }))
        return;
    setRootController(*controller, *_rootController);
    _controller = controller;
    _root->setContent(toolkit::keep(&nativeView(controller->table())));
    _window->layOutAll();
}

void PaneHost::close()
{
    _window->touchCancel();
    releasePane();
}

void PaneHost::releasePane()
{
    // Their answers would go to a pane that no longer exists.
    _window->alerts().dismissAll();
    _rootController->dismissViewControllerAnimatedCompletion(Animated::No, {});
    _root->setContent(nullptr);
    // The pane and the panel retain each other.
    if (_controller && _controller->saver())
        _controller->saver()->setDelegate(nullptr);
    _controller = nullptr;
}

} // namespace brimsound::desktop
