#include "desktop/render/SoundFile.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace brimsound::render {

namespace {

// Removes the period at the end of some of libsndfile's messages.
[[noreturn]] void failWith(const std::string& what, std::string reason)
{
    while (!reason.empty() && (reason.back() == '.' || reason.back() == '\n'))
        reason.pop_back();
    throw std::runtime_error(what + ": " + reason);
}

SNDFILE* openForReading(const std::filesystem::path& path, SF_INFO& info)
{
    auto* file = sf_open(path.c_str(), SFM_READ, &info);
    if (!file)
        failWith("\"" + path.string() + "\" cannot be read", sf_strerror(nullptr));
    return file;
}

SNDFILE* openForWriting(int descriptor, SF_INFO info, const std::filesystem::path& name)
{
    info.frames = 0;
    if (!sf_format_check(&info))
        throw std::runtime_error("\"" + name.string() + "\" cannot be written in the input's format");
    auto* file = sf_open_fd(descriptor, SFM_WRITE, &info, SF_FALSE);
    if (!file)
        failWith("\"" + name.string() + "\" cannot be written", sf_strerror(nullptr));
    return file;
}

void copyDescription(SNDFILE* from, SNDFILE* to, int channels)
{
    for (int text = SF_STR_FIRST; text <= SF_STR_LAST; ++text) {
        if (const char* value = sf_get_string(from, text))
            sf_set_string(to, text, value);
    }
    std::vector<int> order(static_cast<std::size_t>(channels));
    const int size = static_cast<int>(order.size() * sizeof(int));
    if (sf_command(from, SFC_GET_CHANNEL_MAP_INFO, order.data(), size) == SF_TRUE)
        sf_command(to, SFC_SET_CHANNEL_MAP_INFO, order.data(), size);
}

} // namespace

SoundReader::SoundReader(const std::filesystem::path& path)
    : _path(path)
    , _file(openForReading(path, _info), sf_close)
    , _scale(_file.get(), _info.format)
{
}

std::size_t SoundReader::read(std::span<float> samples)
{
    const auto frames = static_cast<sf_count_t>(samples.size()) / _info.channels;
    const auto read = sf_readf_float(_file.get(), samples.data(), frames);
    if (sf_error(_file.get()) != SF_ERR_NO_ERROR)
        failWith("\"" + _path.string() + "\" is damaged", sf_strerror(_file.get()));
    _scale.toFullScale(samples.first(static_cast<std::size_t>(read * _info.channels)));
    return static_cast<std::size_t>(read);
}

SoundWriter::SoundWriter(int descriptor, const SoundReader& like, const std::filesystem::path& name)
    : _name(name)
    , _file(openForWriting(descriptor, like.info(), name), sf_close)
    , _scale(_file.get(), like.info().format)
    , _channels(like.info().channels)
{
    copyDescription(like.handle(), _file.get(), like.info().channels);
}

void SoundWriter::fail(const char* reason) const
{
    failWith("\"" + _name.string() + "\" cannot be written", reason);
}

void SoundWriter::write(std::span<float> samples)
{
    _scale.fromFullScale(samples);
    const auto frames = static_cast<sf_count_t>(samples.size()) / _channels;
    if (sf_writef_float(_file.get(), samples.data(), frames) != frames)
        fail(sf_strerror(_file.get()));
}

void SoundWriter::finish()
{
    if (const int error = sf_close(_file.release()))
        fail(sf_error_number(error));
}

} // namespace brimsound::render
