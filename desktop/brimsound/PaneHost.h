// The place that a pane is shown in.
#pragma once

#include "platform/desktop/UIKit/Window.h"
#include "settings/BrimsoundSettings.h"

namespace brimsound::desktop {

/// A window with a title bar and, below it, the pane's table. The pane can be let go and opened anew.
class PaneHost {
public:
    /// Opens the pane in a window of that size, in points.
    explicit PaneHost(CGSize);
    PaneHost(const PaneHost&) = delete;
    PaneHost& operator=(const PaneHost&) = delete;
    ~PaneHost();

    Window& window() const { return *_window; }
    /// Null while the pane is closed.
    BrimsoundSettingsListController* controller() const { return _controller.get(); }

    /// Presents the pane's sheets.
    UIViewController& rootController() const { return *_rootController; }

    void open();
    /// Takes a touch that is down away, and alerts and sheets unanswered, and releases the pane.
    void close();

private:
    void releasePane();

    RetainPtr<Window> _window;
    RetainPtr<UIView> _root;
    RetainPtr<UIViewController> _rootController;
    RetainPtr<BrimsoundSettingsListController> _controller;
};

/// The pane's title in the user's language.
std::string paneTitle();

} // namespace brimsound::desktop
