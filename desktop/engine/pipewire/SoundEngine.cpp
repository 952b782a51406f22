#include "desktop/engine/SoundEngine.h"

#include "desktop/engine/pipewire/EventTimer.h"
#include "desktop/engine/pipewire/PipeWireLoop.h"
#include "desktop/engine/pipewire/Pointers.h"
#include "desktop/engine/pipewire/Session.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <utility>

namespace brimsound::engine {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds firstPause = 100ms;
constexpr std::chrono::milliseconds longestPause = 5s;

/// Whether the library's default configuration gives the audio thread real-time priority. In earlier
/// versions only a separate file does, which later versions do not have.
bool isRealtimeByDefault()
{
    const std::string version = pw_get_library_version();
    char* end = nullptr;
    const long major = std::strtol(version.c_str(), &end, 10);
    const long minor = *end == '.' ? std::strtol(end + 1, nullptr, 10) : 0;
    return std::pair(major, minor) >= std::pair(1L, 4L);
}

Context makeContext(pw_loop* loop)
{
    auto* properties = pw_properties_new(PW_KEY_APP_NAME, "Brimsound", nullptr);
    if (!isRealtimeByDefault())
        pw_properties_set(properties, PW_KEY_CONFIG_NAME, "client-rt.conf");
    Context context(pw_context_new(loop, properties, 0));
    if (!context)
        throw std::runtime_error("PipeWire's client library cannot be started");
    return context;
}

} // namespace

class SoundEngine::Implementation {
public:
    Implementation(sd_event* event, const Settings& settings, Reports reports)
        : _event(event)
        , _settings(settings)
        , _reports(std::move(reports))
        , _loop(event, [this] { update(); })
        , _context(makeContext(_loop.get()))
        , _retry(event, [this] { connect(); })
    {
        connect();
        if (!_session)
            tellProblem("PipeWire cannot be reached: sound is not equalized until it can");
    }
    Implementation(const Implementation&) = delete;
    Implementation& operator=(const Implementation&) = delete;
    ~Implementation()
    {
        if (_session)
            _session->release();
    }

    void set(const Settings& settings)
    {
        _settings = settings;
        if (_session)
            _session->set(settings);
    }

private:
    void connect()
    {
        Core core(pw_context_connect(_context.get(), nullptr, 0));
        if (!core) {
            tryLater();
            return;
        }
        try {
            _session = std::make_unique<Session>(std::move(core), _event, _loop, _settings, _reports);
        } catch (const std::runtime_error& error) {
            tellProblem(error.what());
            tryLater();
            return;
        }
        if (_reports.connected)
            _reports.connected(true);
    }

    void tryLater()
    {
        _retry.start(_pause);
        _pause = std::min(2 * _pause, longestPause);
    }

    void update()
    {
        if (!_session)
            return;
        try {
            _session->update();
        } catch (const std::runtime_error& error) {
            tellProblem(error.what());
            _session.reset();
            tryLater();
            return;
        }
        if (_session->works())
            _pause = firstPause;
        if (!_session->lost())
            return;
        _session.reset();
        if (_reports.connected)
            _reports.connected(false);
        tellProblem("the connection to PipeWire was lost: reconnecting");
        tryLater();
    }

    void tellProblem(const char* problem)
    {
        if (_reports.problem)
            _reports.problem(problem);
    }

    sd_event* _event;
    Settings _settings;
    Reports _reports;
    PipeWireLoop _loop;
    Context _context;
    EventTimer _retry;
    std::chrono::milliseconds _pause = firstPause;
    std::unique_ptr<Session> _session;
};

SoundEngine::SoundEngine(sd_event* event, const Settings& settings, Reports reports)
    : _implementation(std::make_unique<Implementation>(event, settings, std::move(reports)))
{
}

SoundEngine::~SoundEngine() = default;

void SoundEngine::set(const Settings& settings)
{
    _implementation->set(settings);
}

} // namespace brimsound::engine
