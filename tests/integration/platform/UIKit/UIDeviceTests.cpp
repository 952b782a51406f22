#include "platform/UIKit/UIDevice.h"

#include "tests/support/Shell.h"

#include <gmock/gmock.h>

namespace brimsound {

TEST(TheDevicesSystemVersion, IsTheDistributionsElseTheKernels)
{
    const auto version = tests::firstLineOf(
        ". /etc/os-release || . /usr/lib/os-release; echo \"${VERSION_ID:-$(uname -r)}\"");
    ASSERT_NE(version, "");
    EXPECT_EQ(UIDevice::currentDevice().systemVersion(), version);
}

} // namespace brimsound
