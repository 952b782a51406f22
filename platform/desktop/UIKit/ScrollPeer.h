// What stands behind a view that scrolls up and down.
#pragma once

#include "platform/desktop/UIKit/ViewPeer.h"

#include <deque>
#include <utility>

namespace brimsound::desktop {

/// Moves its subviews under a finger or a wheel: with momentum after a flick, with resistance beyond the
/// edges. All distances are points.
struct ScrollPeer : ViewPeer {
    ScrollPeer();

    virtual double contentHeight() const = 0;

    void scrollTo(double offset);
    void scrollBy(double distance);
    /// Scrolls as little as it takes to show the part, given in the view's own coordinates.
    void scrollIntoView(const CGRect&);

    void beginPan(double windowY);
    void panTo(double windowY);
    void endPan();
    /// Ends any momentum.
    void stop();
    /// Whether the view moves by itself.
    bool isMoving() const { return _isMoving; }
    /// Moves back to the edge that the view is beyond.
    void comeBack();

    void drawAbove(Canvas&) const override;

private:
    double furthest() const;
    void settle(double velocity);
    void showIndicator();

    double _panY = 0;
    double _panOffset = 0;
    /// Times and offsets of the last moments of the pan, for its speed.
    std::deque<std::pair<double, double>> _trail;
    /// Counts movements, so that a new one ends the one before.
    unsigned _movement = 0;
    bool _isMoving = false;
    unsigned _indicatorShowing = 0;
    double _indicatorAlpha = 0;
};

/// The peer of a view that enclosingScrollView gave.
ScrollPeer& scrollPeerOf(const UIView&);

/// The view itself or the nearest view around it that scrolls; null when there is none.
UIView* enclosingScrollView(UIView&);

/// Scrolls what scrolls around the view as little as it takes to show the view, and lays the window out.
void scrollIntoView(UIView&);

} // namespace brimsound::desktop
