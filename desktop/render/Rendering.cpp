#include "desktop/render/Rendering.h"

#include "desktop/engine/audio/EqualizerDesign.h"
#include "desktop/engine/audio/EqualizerProcessor.h"
#include "desktop/engine/audio/Limiter.h"
#include "desktop/render/OutputFile.h"
#include "desktop/render/Progress.h"
#include "desktop/render/SoundFile.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace brimsound::render {

namespace {

constexpr std::size_t blockLength = 4096;

/// Applies the equalizer to interleaved samples.
class Chain {
public:
    Chain(const SF_INFO& info, const Setting& setting)
        : _channels(static_cast<std::size_t>(info.channels))
        , _limiter(info.samplerate)
        , _limits(setting.limiter)
        , _planes(_channels, std::vector<float>(blockLength))
    {
        _processor.set(audio::EqualizerDesign(info.samplerate).solve(setting.gains, setting.preamp));
        for (auto& plane : _planes)
            _pointers.push_back(plane.data());
    }

    void process(std::span<float> samples)
    {
        const auto frames = samples.size() / _channels;
        for (std::size_t i = 0; i < samples.size(); ++i)
            _planes[i % _channels][i / _channels] = samples[i];
        const auto count = static_cast<unsigned>(_channels);
        _processor.process(_pointers.data(), _pointers.data(), count, frames);
        if (_limits)
            _limiter.process(_pointers.data(), count, frames);
        for (std::size_t i = 0; i < samples.size(); ++i)
            samples[i] = _planes[i % _channels][i / _channels];
    }

private:
    std::size_t _channels;
    audio::EqualizerProcessor _processor;
    audio::Limiter _limiter;
    bool _limits;
    std::vector<std::vector<float>> _planes;
    std::vector<float*> _pointers;
};

} // namespace

void renderFile(const std::filesystem::path& in, const std::filesystem::path& out, const Setting& setting)
{
    SoundReader reader(in);
    const auto channels = static_cast<std::size_t>(reader.info().channels);
    if (channels > audio::maximumChannels) {
        throw std::runtime_error("\"" + in.string() + "\" has " + std::to_string(channels)
            + " channels; at most " + std::to_string(audio::maximumChannels) + " can be equalized");
    }

    OutputFile file(out);
    SoundWriter writer(file.descriptor(), reader, out);
    Chain chain(reader.info(), setting);
    Progress progress(reader.info().frames);
    std::vector<float> block(blockLength * channels);
    std::int64_t done = 0;
    while (const auto frames = reader.read(block)) {
        const auto samples = std::span(block).first(frames * channels);
        chain.process(samples);
        writer.write(samples);
        done += static_cast<std::int64_t>(frames);
        progress.update(done);
    }
    writer.finish();
    file.keep();
}

} // namespace brimsound::render
