#include "tests/support/TemporaryRoot.h"

#include "platform/desktop/Foundation/DeviceRoot.h"

namespace brimsound::tests {

TemporaryRoot::TemporaryRoot()
{
    desktop::setDeviceRoot(path());
    desktop::prepareDeviceRoot();
}

TemporaryRoot::~TemporaryRoot()
{
    desktop::setDeviceRoot({});
}

void TemporaryRoot::write(std::string_view devicePath, std::string_view text) const
{
    writeFile(desktop::resolveDevicePath(devicePath), text);
}

std::string TemporaryRoot::read(std::string_view devicePath) const
{
    return readFile(desktop::resolveDevicePath(devicePath));
}

bool TemporaryRoot::contains(std::string_view devicePath) const
{
    return std::filesystem::exists(desktop::resolveDevicePath(devicePath));
}

} // namespace brimsound::tests
