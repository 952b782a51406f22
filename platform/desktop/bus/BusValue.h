// Property-list values in D-Bus messages.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <systemd/sd-bus.h>

namespace brimsound::desktop {

/// Appends the dictionary as "a{sv}": booleans as b, integers as x, reals as d, strings as s, data as ay,
/// dates as d (their seconds), arrays as ad when they hold reals only and as av otherwise, dictionaries as
/// a{sv}. A negative errno on failure; a value that is, or holds, null is one.
int appendDictionary(sd_bus_message*, const PropertyList::Dictionary&);

/// Reads an "a{sv}", or any other dictionary with string keys, into the dictionary. Numbers of every type
/// become integers or reals, strings, object paths and signatures strings, ay data, other arrays arrays. What
/// has no equivalent is left out of dictionaries and null in arrays. A negative errno on failure; more than
/// 4096 values are one.
int readDictionary(sd_bus_message*, PropertyList::Dictionary&);

} // namespace brimsound::desktop
