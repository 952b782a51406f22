#pragma once

#include "platform/Foundation/PropertyList.h"

#include <systemd/sd-bus.h>

namespace brimsound::desktop {

/// Appends the dictionary as "a{sv}". Booleans become b, integers x, reals d, strings s, data ay, dates d
/// (their seconds), arrays ad when they contain only reals and av otherwise, dictionaries a{sv}. Returns a
/// negative errno on failure. Null values are a failure.
int appendDictionary(sd_bus_message*, const PropertyList::Dictionary&);

/// Reads an "a{sv}", or any other dictionary with string keys. Numbers of all types become integers or reals;
/// strings, object paths and signatures become strings; ay becomes data; other arrays become arrays. Values
/// without an equivalent are left out of dictionaries and are null in arrays. Returns a negative errno on
/// failure. More than 4096 values are a failure.
int readDictionary(sd_bus_message*, PropertyList::Dictionary&);

} // namespace brimsound::desktop
