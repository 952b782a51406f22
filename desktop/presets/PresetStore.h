#pragma once

#include "desktop/engine/audio/Bands.h"
#include "platform/Foundation/PropertyList.h"

#include <optional>
#include <string>
#include <vector>

namespace brimsound::presets {

/// The presets in the preferences file, by the rules of the settings pane: when there are none, these are the
/// built-in ones. They are read once and written once; whoever writes last wins.
class PresetStore {
public:
    /// Reads the file. Throws std::runtime_error when there is one that cannot be read, because writing would
    /// replace it.
    PresetStore();

    /// In the order of the file.
    std::vector<std::string> names() const;
    bool contains(const std::string& name) const { return _presets.find(name) != nullptr; }
    /// In dB, from -12 to 12. Throws std::runtime_error when there is no such preset, or when it is not ten
    /// gains.
    audio::BandGains gainsOf(const std::string& name) const;
    /// Whether there is a preset of that name with these gains, in the precision of the file.
    bool contains(const std::string& name, const audio::BandGains&) const;
    /// The preset last chosen or saved. It may have been deleted since.
    std::optional<std::string> selected() const;

    /// Adds a preset, or replaces that of the name.
    void set(const std::string& name, const audio::BandGains&);
    /// Both names are valid: there is an old one, and no new one. The preset keeps its place and stays
    /// selected.
    void rename(const std::string& oldName, const std::string& newName);
    void remove(const std::string& name);

    /// Writes the file if anything changed, and tells the engine and an open pane. Throws std::runtime_error
    /// when it cannot be written. A missing session bus is no failure.
    void save();

private:
    PropertyList::Dictionary _preferences;
    PropertyList::Dictionary _presets;
    bool _changed = false;
};

} // namespace brimsound::presets
