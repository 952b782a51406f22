// Sound files by libsndfile.
#pragma once

#include "desktop/render/SampleScale.h"

#include <sndfile.h>

#include <filesystem>
#include <memory>
#include <span>

namespace brimsound::render {

/// A file being read. Samples are interleaved, full scale is 1.
class SoundReader {
public:
    /// Throws std::runtime_error when it cannot be read as sound.
    explicit SoundReader(const std::filesystem::path&);

    const SF_INFO& info() const { return _info; }
    SNDFILE* handle() const { return _file.get(); }

    /// Fills the samples, whole frames, as far as the file goes, and returns how many frames there were:
    /// fewer only at its end. Throws std::runtime_error when the file is damaged.
    std::size_t read(std::span<float> samples);

private:
    std::filesystem::path _path;
    SF_INFO _info {};
    std::unique_ptr<SNDFILE, decltype(&sf_close)> _file;
    SampleScale _scale;
};

/// A file being written, in the format of another, with its texts and the order of its channels.
class SoundWriter {
public:
    /// Writes to an open descriptor, which stays the caller's. `name` is for messages. Throws
    /// std::runtime_error when libsndfile cannot write the format.
    SoundWriter(int descriptor, const SoundReader& like, const std::filesystem::path& name);

    /// Whole frames, scaled and clipped in place. Throws std::runtime_error when they cannot be written.
    void write(std::span<float> samples);
    /// Throws std::runtime_error when what was written so far cannot be completed.
    void finish();

private:
    [[noreturn]] void fail(const char* reason) const;

    std::filesystem::path _name;
    std::unique_ptr<SNDFILE, decltype(&sf_close)> _file;
    SampleScale _scale;
    sf_count_t _channels;
};

} // namespace brimsound::render
