// What stands behind a UISlider.
#pragma once

#include "platform/UIKit/UISlider.h"
#include "platform/desktop/UIKit/ControlPeer.h"

namespace brimsound::desktop {

/// A finger takes the thumb along from wherever it touches the slider, so that a touch alone moves nothing; a
/// mouse press beside the thumb brings it there.
struct SliderPeer : ControlPeer {
    float value = 0;
    float minimum = 0;
    float maximum = 1;
    RetainPtr<UIColor> minimumTrackTint;
    /// How far the touch is from the thumb's centre while the slider is held, in points.
    double grip = 0;
    /// What names the slider while it or one beside it is held: the labels show values then.
    std::string heldCaption;
    /// Whether the touch that holds the slider is a key.
    bool isHeldByKey = false;

    SliderPeer();

    void beginTracking(CGPoint, Pointer) override;
    void continueTracking(CGPoint) override;
    /// The arrows move the slider by a tenth of a decibel, Page Up and Page Down by one, Home and End to its
    /// ends: a key takes the thumb, each stroke draws it on, and releasing the key lets it go.
    bool keyPressed(Key, KeyStroke) override;
    void keysReleased() override;
    FocusRing focusRing() const override;
    void draw(Canvas&) const override;
    Accessible accessible() const override;

    /// Where the thumb's centre stands for a value, in the slider's own coordinates.
    CGPoint thumbCentre(double value) const;
    /// What the track is drawn in between its start and the thumb.
    Color tint() const;
    void takeValueAt(double x);
};

SliderPeer& peerOf(const UISlider&);

} // namespace brimsound::desktop
