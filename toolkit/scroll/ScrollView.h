#pragma once

#include "toolkit/time/Animation.h"
#include "toolkit/view/View.h"

#include <deque>

namespace brimsound::toolkit {

/// Scrolls its children vertically, with a finger or a wheel: with momentum after a flick, and with
/// resistance beyond the edges. All distances are points.
class ScrollView : public View {
public:
    explicit ScrollView(const Rect& frame = {});

    virtual double contentHeight() const = 0;

    void scrollTo(double offset);
    void scrollBy(double distance);
    /// Scrolls by this many times its height, downward when positive.
    void scrollPages(double pages);
    void scrollToEnd() { scrollTo(contentHeight()); }
    /// Scrolls as little as necessary to show the rectangle, given in the view's own coordinates.
    void show(const Rect&);

    void beginPan(double windowY);
    void panTo(double windowY);
    void endPan();
    /// Stops any momentum.
    void stop();
    /// Whether it is scrolling without a touch.
    bool isMoving() const { return _momentum.isRunning(); }
    /// Starts to scroll back to the edge that the view was scrolled beyond.
    void comeBack();

    void drawAbove(Canvas&) const override;

protected:
    ScrollView* asScrollView() override { return this; }

private:
    struct Moment {
        /// On the clock, in seconds.
        double time;
        double y;
    };

    double furthest() const;
    double nearestEdge(double offset) const;
    void settle(double velocity);
    void showIndicator();

    double _panY = 0;
    double _panOffset = 0;
    /// The latest positions of the finger, for the speed of the flick.
    std::deque<Moment> _trail;
    Animation _momentum;
    Animation _indicator;
    double _indicatorAlpha = 0;
};

/// Scrolls the enclosing scroll view as little as necessary to show the view, and lays out the window.
void scrollIntoView(View&);

} // namespace brimsound::toolkit
