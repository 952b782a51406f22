#include "tests/end_to_end/brimsound/Aftermath.h"

#include "platform/Foundation/PropertyListSerialization.h"
#include "platform/desktop/bus/SessionBus.h"
#include "settings/tweak.h"

#include <thread>

namespace brimsound::tests {

std::vector<float> storedGains()
{
    const auto file = readPropertyListFile(preferencesPath);
    const auto* preferences = file ? file->asDictionary() : nullptr;
    const auto* preamp = preferences ? preferences->find(preampKey) : nullptr;
    const auto* bands = preferences ? arrayForKey(*preferences, peakingEqValuesKey) : nullptr;
    if (!preamp || !bands || bands->size() != 10)
        return {};
    std::vector<float> gains { preamp->floatValue() };
    for (const auto& band : *bands)
        gains.push_back(band.floatValue());
    return gains;
}

bool comesToPlay(MediaServer& server, const std::vector<float>& gains)
{
    while (const auto line = server.nextLine()) {
        if (Json::parse(*line).at("vals").get<std::vector<float>>() == gains)
            return true;
    }
    return false;
}

testing::AssertionResult releaseArrives(RunningProgram& pane, MediaServer& server, float gain)
{
    for (const auto* line : { "touch 3", "drag 3 ", "lift 3", "wait 0" })
        pane.say(std::string(line) + (line[0] == 'd' ? std::to_string(gain) : ""));
    if (pane.next("write").is_null() || pane.next("notify").is_null())
        return testing::AssertionFailure() << "the release was not announced";
    const auto gains = storedGains();
    if (gains.size() != 11 || gains[3] != gain)
        return testing::AssertionFailure() << "the file does not contain the gains";
    if (!comesToPlay(server, gains))
        return testing::AssertionFailure() << "the media server does not play the file's gains";
    return testing::AssertionSuccess();
}

pid_t serverProcess()
{
    sd_bus_creds* creds = nullptr;
    pid_t pid = 0;
    auto* bus = desktop::SessionBus::shared().connection();
    if (bus && sd_bus_get_name_creds(bus, messagingCenterName, SD_BUS_CREDS_PID, &creds) >= 0)
        sd_bus_creds_get_pid(creds, &pid);
    sd_bus_creds_unref(creds);
    return pid;
}

bool eventually(const std::function<bool()>& condition)
{
    using namespace std::chrono_literals;
    const auto deadline = std::chrono::steady_clock::now() + 10s;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        std::this_thread::sleep_for(5ms);
    }
    return true;
}

} // namespace brimsound::tests
