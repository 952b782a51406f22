// Conversion of PipeWire's properties.
#pragma once

#include <spa/utils/dict.h>

#include <map>
#include <string>

namespace brimsound::engine {

/// Null gives an empty map.
inline std::map<std::string, std::string> toMap(const spa_dict* dictionary)
{
    std::map<std::string, std::string> map;
    for (std::uint32_t i = 0; dictionary && i < dictionary->n_items; ++i) {
        const auto& item = dictionary->items[i];
        if (item.value)
            map[item.key] = item.value;
    }
    return map;
}

} // namespace brimsound::engine
