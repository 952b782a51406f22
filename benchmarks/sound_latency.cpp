// Measures the delay of a slider's effect on the sound, the residue that its movement adds, and the processor
// time, compared with PipeWire's own filter chain in the same sound system: sound_latency OUTPUT.json
#include "benchmarks/FilterChain.h"
#include "tests/support/TemporaryRoot.h"
#include "tests/support/sound/Engine.h"
#include "tests/support/sound/Levels.h"
#include "tests/support/sound/Recorder.h"
#include "tests/support/sound/SoundFile.h"
#include "tests/support/sound/SoundSystem.h"
#include "tests/support/sound/Wait.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdio>
#include <fstream>
#include <functional>
#include <iostream>
#include <numbers>
#include <stdexcept>
#include <unistd.h>

namespace {

using namespace brimsound;
using namespace brimsound::tests;
using benchmarks::FilterChain;
using namespace std::chrono_literals;
using Json = nlohmann::json;
using Complex = std::complex<double>;

/// Half of them raise the gain and half lower it.
constexpr int messages = 40;
constexpr double rate = 48000;
/// The band of 1 kHz, counted from 0.
constexpr int band = 4;
constexpr double frequency = 1000;

/// One of the two equalizers.
struct Subject {
    std::string name;
    std::string sink;
    std::function<void(double gain)> setGain;
    pid_t process;
};

class Player : public desktop::ChildProcess {
public:
    Player(const Subject& subject, const std::filesystem::path& file)
        : ChildProcess(
            { "sh", "-c", "exec pw-play --target \"$1\" \"$2\" >/dev/null 2>&1", "sh", subject.sink, file })
    {
    }
};

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values.empty() ? std::nan("") : values[values.size() / 2];
}

double cpuSeconds(pid_t process)
{
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    std::string text;
    std::getline(file, text);
    // After the name in parentheses, fields 14 and 15 are the user and system time of the process.
    std::istringstream fields(text.substr(text.rfind(')') + 2));
    std::string skipped;
    for (int i = 0; i < 11; ++i)
        fields >> skipped;
    double user = 0;
    double kernel = 0;
    fields >> user >> kernel;
    return (user + kernel) / static_cast<double>(sysconf(_SC_CLK_TCK));
}

/// The amplitude of the sine around a sample, from one period of 48 samples.
double amplitude(const Samples& samples, std::size_t begin)
{
    Complex sum;
    for (std::size_t i = 0; i < 48; ++i)
        sum += static_cast<double>(samples[begin + i])
            * std::polar(1.0, -2 * std::numbers::pi * static_cast<double>(i) / 48);
    return 2 * std::abs(sum) / 48;
}

/// The first sample that does not continue the preceding sine.
std::optional<std::size_t> firstChange(const Samples& samples)
{
    for (std::size_t i = 48; i < samples.size(); ++i) {
        if (std::abs(samples[i] - samples[i - 48]) > 1e-4F)
            return i;
    }
    return std::nullopt;
}

/// The number of samples from the message to the first change of the sound, and until it is within 1 % of its
/// final level.
Json latency(const Subject& subject)
{
    const Recorder device("hw1");
    double still = 0;
    if (!eventually([&] { return (still = level(device.next(9600)) * std::numbers::sqrt2) > 0.2; }))
        throw std::runtime_error(subject.name + " plays nothing");
    std::vector<double> first;
    std::vector<double> settled;
    for (int message = 0; message < messages; message += 2) {
        // Up and back, so that each jump starts from a steady state.
        for (const double gain : { 6.0, 0.0 }) {
            const auto before = device.position();
            subject.setGain(gain);
            const auto samples = device.next(14400);
            const double wanted = still * std::pow(10, gain / 20);
            const auto sent = before - std::min<std::size_t>(before, 96);
            const auto all = device.samples(sent);
            if (const auto change = firstChange(all))
                first.push_back(static_cast<double>(*change) - 96);
            const double distance = std::abs(still * std::pow(10, (6 - gain) / 20) - wanted);
            for (std::size_t begin = 0; begin + 48 <= all.size(); begin += 8) {
                if (std::abs(amplitude(all, begin) - wanted) < 0.01 * distance) {
                    settled.push_back(static_cast<double>(begin + 48) - 96);
                    break;
                }
            }
        }
    }
    return { { "first", median(first) }, { "settled", median(settled) } };
}

void transform(std::vector<Complex>& values)
{
    const auto count = values.size();
    if (count < 2)
        return;
    std::vector<Complex> even;
    std::vector<Complex> odd;
    for (std::size_t i = 0; i < count; i += 2) {
        even.push_back(values[i]);
        odd.push_back(values[i + 1]);
    }
    transform(even);
    transform(odd);
    for (std::size_t i = 0; i < count / 2; ++i) {
        const auto turned
            = std::polar(1.0, -2 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(count))
            * odd[i];
        values[i] = even[i] + turned;
        values[i + count / 2] = even[i] - turned;
    }
}

/// The level of everything more than 250 Hz from the sine, in dBFS: the median of several pieces, because a
/// busy machine may lose blocks.
double residue(const Samples& samples)
{
    constexpr std::size_t length = 8192;
    std::vector<double> found;
    for (std::size_t begin = 0; begin + length <= samples.size(); begin += length) {
        std::vector<Complex> piece;
        double weights = 0;
        for (std::size_t i = 0; i < length; ++i) {
            // The side lobes of this window are far below the measured levels.
            const double weight = std::pow(std::sin(std::numbers::pi * static_cast<double>(i) / length), 6);
            weights += weight * weight;
            piece.emplace_back(weight * static_cast<double>(samples[begin + i]));
        }
        transform(piece);
        double energy = 0;
        for (std::size_t i = 0; i < length / 2; ++i) {
            const double distance = std::abs(static_cast<double>(i) * rate / length - frequency);
            energy += distance > 250 ? 2 * std::norm(piece[i]) : 0;
        }
        found.push_back(10 * std::log10(energy / (weights * length)));
    }
    return median(found);
}

/// A drag from -12 to +12 dB and back, a hundred updates a second.
double drag(const Subject& subject)
{
    const Recorder device("hw1");
    const auto begin = device.position();
    auto next = std::chrono::steady_clock::now();
    for (int update = 0; update < 600; ++update) {
        const int phase = update % 100;
        subject.setGain(-12 + 0.48 * (phase < 50 ? phase : 100 - phase));
        next += 10ms;
        std::this_thread::sleep_until(next);
    }
    const auto samples = device.samples(begin);
    subject.setGain(0);
    return residue(samples);
}

/// The share of a core while a stereo stream is processed.
double cost(const Subject& subject)
{
    const double before = cpuSeconds(subject.process);
    const auto start = std::chrono::steady_clock::now();
    std::this_thread::sleep_for(10s);
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
    return (cpuSeconds(subject.process) - before) / passed.count();
}

/// Measures both in their own sound system with blocks of that many frames.
void measure(int quantum, Json& results)
{
    const TemporaryRoot root;
    SoundSystem system;
    system.setMetadata("settings", 0, "clock.force-quantum", std::to_string(quantum), "");
    storePreferences(preamp(0));
    Engine engine;
    FilterChain chain(system.folder());
    // Two minutes for each measurement.
    const auto tone = system.folder() / "tone.wav";
    writeSound(tone, sine(120));
    const Subject subjects[] {
        { "The engine", "brimsound",
            [](double gain) {
                tests::Gains gains {};
                gains[band + 1] = gain;
                send(gains);
            },
            engine.process().processIdentifier() },
        { "PipeWire's filter chain", "chain", [&](double gain) { chain.setGain(band, gain); },
            chain.processIdentifier() },
    };
    for (const auto& subject : subjects) {
        const Player player(subject, tone);
        auto result = latency(subject);
        result["residue"] = drag(subject);
        result["core"] = cost(subject);
        result["quantum"] = quantum;
        result["name"] = subject.name;
        results.push_back(result);
        std::cerr << result.dump() << "\n";
    }
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 2) {
        std::fprintf(stderr, "Usage: sound_latency OUTPUT.json\n");
        return 2;
    }
    try {
        Json results = Json::array();
        for (const int quantum : { 64, 256, 1024 })
            measure(quantum, results);
        std::ofstream(arguments[1]) << results.dump(1) << "\n";
    } catch (const std::exception& error) {
        std::fprintf(stderr, "sound_latency: %s\n", error.what());
        return 1;
    }
    return 0;
}
