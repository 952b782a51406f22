#include "tests/support/TemporaryRoot.h"

#include "platform/desktop/Foundation/DeviceRoot.h"

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <system_error>

namespace brimsound::tests {

namespace fs = std::filesystem;

namespace {

fs::path newFolder()
{
    auto path = (fs::temp_directory_path() / "brimsound-test-XXXXXX").string();
    if (!mkdtemp(path.data()))
        throw std::system_error(errno, std::generic_category(), path);
    return path;
}

} // namespace

TemporaryRoot::TemporaryRoot()
    : _path(newFolder())
    , _rootBefore(desktop::deviceRoot())
{
    desktop::setDeviceRoot(_path);
    desktop::prepareDeviceRoot();
}

TemporaryRoot::~TemporaryRoot()
{
    desktop::setDeviceRoot(_rootBefore);
    fs::remove_all(_path);
}

void TemporaryRoot::write(std::string_view devicePath, std::string_view text) const
{
    const auto path = desktop::resolveDevicePath(devicePath);
    fs::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(text.data(), static_cast<std::streamsize>(text.size()));
    file.close();
    if (!file)
        throw std::runtime_error("cannot write " + path.string());
}

std::string TemporaryRoot::read(std::string_view devicePath) const
{
    std::ifstream file(desktop::resolveDevicePath(devicePath), std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

bool TemporaryRoot::contains(std::string_view devicePath) const
{
    return fs::exists(desktop::resolveDevicePath(devicePath));
}

} // namespace brimsound::tests
