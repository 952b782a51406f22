// A preferences file by another program, with far more keys than the pane's own.
#include "platform/desktop/Foundation/DeviceRoot.h"
#include "settings/tweak.h"
#include "tests/end_to_end/brimsound/Program.h"
#include "tests/support/TestBus.h"

#include <gmock/gmock.h>

namespace brimsound::tests {
namespace {

using testing::ElementsAre;

/// Runs the Python program on the preferences file and returns its output.
std::string outputOfPython(const std::string& program)
{
    desktop::ChildProcess python(
        { "python3", "-c", "import plistlib, sys\n" + program, desktop::resolveDevicePath(preferencesPath) },
        desktop::ChildProcess::Output::Piped);
    return python.readLine(std::chrono::seconds(60)).value_or("nothing");
}

TEST(AVeryLongFile, KeepsEveryKeyInItsPlaceWhenASwitchIsFlipped)
{
    const TemporaryRoot root;
    const TestBus bus;
    const std::string keys = "keys = {'Key number %d' % i: i for i in range(100000)}\n";
    ASSERT_EQ(outputOfPython(keys
                  + "with open(sys.argv[1], 'wb') as file:\n"
                    "    plistlib.dump({**keys, 'ENABLED': True}, file,\n"
                    "        fmt=plistlib.FMT_BINARY, sort_keys=False)\n"
                    "print('written')"),
        "written");
    const auto run = playScript(root, "switch ENABLED off\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_THAT(run.effects(), ElementsAre("write", "alert"));
    EXPECT_EQ(outputOfPython(keys
                  + "with open(sys.argv[1], 'rb') as file:\n"
                    "    read = plistlib.load(file)\n"
                    "print(list(read.items()) == list({**keys, 'ENABLED': False}.items()))"),
        "True");
}

} // namespace
} // namespace brimsound::tests
