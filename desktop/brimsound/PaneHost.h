#pragma once

#include "settings/BrimsoundSettings.h"
#include "toolkit/window/Window.h"

namespace brimsound::desktop {

/// A window with a title bar and, below it, the pane's table. The pane can be released and opened again.
class PaneHost {
public:
    /// Opens the pane in a window of that size in points.
    explicit PaneHost(toolkit::Size);
    PaneHost(const PaneHost&) = delete;
    PaneHost& operator=(const PaneHost&) = delete;
    ~PaneHost();

    toolkit::Window& window() const { return *_window; }
    /// Null while the pane is closed.
    BrimsoundSettingsListController* controller() const { return _controller.get(); }

    /// Presents the pane's sheets.
    UIViewController& rootController() const { return *_rootController; }

    void open();
    /// Cancels a touch, dismisses alerts and sheets without an answer, and releases the pane.
    void close();

private:
    class RootView;

    void releasePane();

    toolkit::Ref<toolkit::Window> _window;
    toolkit::Ref<RootView> _root;
    RetainPtr<UIViewController> _rootController;
    RetainPtr<BrimsoundSettingsListController> _controller;
};

/// The pane's title in the user's language.
std::string paneTitle();

} // namespace brimsound::desktop
