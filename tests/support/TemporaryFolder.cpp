#include "tests/support/TemporaryFolder.h"

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
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

TemporaryFolder::TemporaryFolder()
    : _path(newFolder())
{
}

TemporaryFolder::~TemporaryFolder()
{
    fs::remove_all(_path);
}

void writeFile(const fs::path& path, std::string_view text)
{
    fs::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(text.data(), static_cast<std::streamsize>(text.size()));
    file.close();
    if (!file)
        throw std::runtime_error("cannot write " + path.string());
}

std::string readFile(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

} // namespace brimsound::tests
