#include "platform/desktop/Foundation/FileContents.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace brimsound::desktop {

namespace {

class FileDescriptor {
public:
    explicit FileDescriptor(int number)
        : _number(number)
    {
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor() { close(); }

    int number() const { return _number; }

    /// The length of a regular file; nothing when it is none.
    std::optional<std::size_t> length() const
    {
        struct stat status { };
        if (fstat(_number, &status) != 0 || !S_ISREG(status.st_mode))
            return std::nullopt;
        return static_cast<std::size_t>(status.st_size);
    }
    bool isRegularFile() const { return length().has_value(); }

    /// Some file systems report a failed write only now.
    bool close()
    {
        const int number = std::exchange(_number, -1);
        return number >= 0 && ::close(number) == 0;
    }

private:
    int _number;
};

bool writeAll(int file, std::span<const std::byte> bytes)
{
    while (!bytes.empty()) {
        const auto count = write(file, bytes.data(), bytes.size());
        if (count < 0 && errno != EINTR)
            return false;
        if (count > 0)
            bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
    return true;
}

} // namespace

std::optional<std::vector<std::byte>> readRegularFile(const std::filesystem::path& path, std::size_t limit)
{
    const FileDescriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    const auto length = file.length();
    if (!length || *length > limit)
        return std::nullopt;

    std::vector<std::byte> bytes;
    bytes.reserve(*length);
    std::byte block[16 * 1024];
    for (;;) {
        const auto count = read(file.number(), block, sizeof block);
        if (count == 0)
            return bytes;
        if (count < 0 && errno != EINTR)
            return std::nullopt;
        if (count > 0)
            bytes.insert(bytes.end(), block, block + count);
        if (bytes.size() > limit)
            return std::nullopt;
    }
}

bool overwriteFile(const std::filesystem::path& path, std::span<const std::byte> bytes)
{
    // Truncated only once it is known to be a file.
    FileDescriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_NONBLOCK | O_CLOEXEC, S_IRUSR | S_IWUSR));
    return file.isRegularFile() && ftruncate(file.number(), 0) == 0 && writeAll(file.number(), bytes)
        && file.close();
}

bool replaceFile(const std::filesystem::path& path, std::span<const std::byte> bytes)
{
    auto temporaryPath = path.string() + ".XXXXXX";
    FileDescriptor file(mkostemp(temporaryPath.data(), O_CLOEXEC));
    if (file.number() < 0)
        return false;
    if (writeAll(file.number(), bytes) && file.close() && rename(temporaryPath.c_str(), path.c_str()) == 0)
        return true;
    unlink(temporaryPath.c_str());
    return false;
}

} // namespace brimsound::desktop
