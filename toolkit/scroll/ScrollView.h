// Views that scroll up and down.
#pragma once

#include "toolkit/time/Animation.h"
#include "toolkit/view/View.h"

#include <deque>

namespace brimsound::toolkit {

/// Moves its children under a finger or a wheel: with momentum after a flick, with resistance beyond the
/// edges. All distances are points.
class ScrollView : public View {
public:
    explicit ScrollView(const Rect& frame = {});

    virtual double contentHeight() const = 0;

    void scrollTo(double offset);
    void scrollBy(double distance);
    /// By so many of its heights, downwards when positive.
    void scrollPages(double pages);
    void scrollToEnd() { scrollTo(contentHeight()); }
    /// Scrolls as little as it takes to show the part, given in the view's own coordinates.
    void show(const Rect&);

    void beginPan(double windowY);
    void panTo(double windowY);
    void endPan();
    /// Ends any momentum.
    void stop();
    /// Whether the view moves by itself.
    bool isMoving() const { return _momentum.isRunning(); }
    /// Moves back to the edge that the view is beyond.
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
    /// The last moments of the pan, for its speed.
    std::deque<Moment> _trail;
    Animation _momentum;
    Animation _indicator;
    double _indicatorAlpha = 0;
};

/// Scrolls what scrolls around the view as little as it takes to show the view, and lays the window out.
void scrollIntoView(View&);

} // namespace brimsound::toolkit
