#include "desktop/brimsound/PaneHost.h"

#include "platform/desktop/Preferences/RootController.h"
#include "platform/desktop/UIKit/NavigationBar.h"
#include "platform/desktop/UIKit/ViewControllerPeer.h"
#include "settings/Localized.h"

namespace brimsound::desktop {

namespace {

/// Fills the window: the title bar at the top, the pane's table below.
class RootView : public UIView {
public:
    RootView()
        : _bar(make<NavigationBar>(paneTitle()))
    {
        addSubview(*_bar);
    }

    void setContent(RetainPtr<UIView> content)
    {
        // This view may also contain a preset panel, which must not be above a new content view.
        for (const auto& view : std::vector(subviews())) {
            if (view != _bar.get())
                view->removeFromSuperview();
        }
        _content = std::move(content);
        if (_content)
            addSubview(*_content);
    }

    void layoutSubviews() override
    {
        const auto [width, height] = bounds().size;
        _bar->setFrame(CGRectMake(0, 0, width, NavigationBar::height));
        if (_content) {
            _content->setFrame(
                CGRectMake(0, NavigationBar::height, width, std::max(0.0, height - NavigationBar::height)));
        }
    }

private:
    RetainPtr<NavigationBar> _bar;
    RetainPtr<UIView> _content;
};

/// Resizes its one subview with the window.
class PaneWindow : public Window {
public:
    using Window::Window;

    void layoutSubviews() override
    {
        for (const auto& view : subviews())
            view->setFrame(bounds());
    }
};

} // namespace

std::string paneTitle()
{
    return localized("Brimsound", "Brimsound");
}

PaneHost::PaneHost(CGSize size)
    : _window(make<PaneWindow>(size))
    , _root(make<RootView>())
    , _rootController(makeViewController(_root))
{
    _window->addSubview(*_root);
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
    const auto size = _window->bounds().size;
    const auto controller = make<BrimsoundSettingsListController>();
    if (!controller->initForContentSize({ size.width, std::max(0.0, size.height - NavigationBar::height) }))
        return;
    setRootController(*controller, *_rootController);
    _controller = controller;
    static_cast<RootView&>(*_root).setContent(retain<UIView>(&controller->table()));
    _window->layOut();
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
    static_cast<RootView&>(*_root).setContent(nullptr);
    // The pane and the panel retain each other.
    if (_controller && _controller->saver())
        _controller->saver()->setDelegate(nullptr);
    _controller = nullptr;
}

} // namespace brimsound::desktop
