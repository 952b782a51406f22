#include "desktop/engine/SoundEngine.h"

#include <gmock/gmock.h>

namespace brimsound::engine {

TEST(AnEngineWithoutPipeWire, ReportsThisOnceAndAcceptsSettings)
{
    std::vector<std::string> problems;
    Reports reports;
    reports.problem = [&](const std::string& problem) { problems.push_back(problem); };
    SoundEngine engine(nullptr, {}, reports);
    engine.set({ .preamp = 6 });
    EXPECT_THAT(problems, testing::ElementsAre(testing::HasSubstr("no PipeWire")));
}

TEST(AnEngineWithoutPipeWire, ReportsNothingWithoutACallback)
{
    SoundEngine engine(nullptr, {}, {});
    engine.set({});
}

} // namespace brimsound::engine
