// The gains of the media server.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <array>
#include <functional>
#include <optional>

namespace brimsound::mediaserver {

/// In dB, the preamp first, then the bands from 60 Hz up.
using Gains = std::array<float, 11>;

/// The gains of an "equalizer_send" message's user info; nothing unless "vals" is eleven finite numbers.
std::optional<Gains> gainsOfMessage(const PropertyList::Dictionary& userInfo);

/// The gains in the preferences. A gain that is missing or not a finite number is 0 dB.
Gains gainsOfPreferences(const PropertyList::Dictionary&);

/// Initially all gains are 0 dB.
class Equalizer {
public:
    const Gains& gains() const { return _gains; }
    /// Limits the gains to 12 dB in either direction.
    void setGains(Gains);

    /// Called after the gains changed.
    std::function<void(const Gains&)> onChange;

private:
    Gains _gains {};
};

} // namespace brimsound::mediaserver
