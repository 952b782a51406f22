// Reading and writing sound files with libsndfile.
#pragma once

#include "desktop/render/SampleScale.h"

#include <sndfile.h>

#include <filesystem>
#include <memory>
#include <span>

namespace brimsound::render {

/// A file that is being read. Samples are interleaved, full scale is 1.
class SoundReader {
public:
    /// Throws std::runtime_error when it cannot be read as sound.
    explicit SoundReader(const std::filesystem::path&);

    const SF_INFO& info() const { return _info; }
    SNDFILE* handle() const { return _file.get(); }

    /// Reads whole frames into the samples and returns the number of frames. It is smaller than requested
    /// only at the end of the file. Throws std::runtime_error when the file is damaged.
    std::size_t read(std::span<float> samples);

private:
    std::filesystem::path _path;
    SF_INFO _info {};
    std::unique_ptr<SNDFILE, decltype(&sf_close)> _file;
    SampleScale _scale;
};

/// A file that is being written, in the format of another, with its tags and channel order.
class SoundWriter {
public:
    /// Writes to an open descriptor, which the caller closes. `name` is for messages. Throws
    /// std::runtime_error when libsndfile cannot write the format.
    SoundWriter(int descriptor, const SoundReader& like, const std::filesystem::path& name);

    /// Writes whole frames. Scales and clips them in place. Throws std::runtime_error on failure.
    void write(std::span<float> samples);
    /// Completes the file. Throws std::runtime_error on failure.
    void finish();

private:
    [[noreturn]] void fail(const char* reason) const;

    std::filesystem::path _name;
    std::unique_ptr<SNDFILE, decltype(&sf_close)> _file;
    SampleScale _scale;
    sf_count_t _channels;
};

} // namespace brimsound::render
