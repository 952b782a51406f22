#include "platform/desktop/Foundation/FileContents.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
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

    /// The length of a regular file; nothing for other files.
    std::optional<std::size_t> length() const
    {
        struct stat status { };
        if (fstat(_number, &status) != 0 || !S_ISREG(status.st_mode))
            return std::nullopt;
        return static_cast<std::size_t>(status.st_size);
    }
    bool isRegularFile() const { return length().has_value(); }

    /// Some file systems report a failed write only when the file is closed.
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

/// Reserves disk space for that many bytes of the file, from its start. Returns false when this fails: the
/// disk or the quota is full, or the file would be too large.
bool reserve(int file, std::size_t length)
{
    if (length == 0)
        return true;
    int error = EINTR;
    while (error == EINTR)
        error = posix_fallocate(file, 0, static_cast<off_t>(length));
    // On file systems that cannot reserve space, the C library writes a zero into each new block instead.
    return error == 0;
}

void undoReserving(const std::filesystem::path& path, int file, std::size_t oldLength, bool isNew)
{
    // A reservation that failed halfway made the file longer.
    if (ftruncate(file, static_cast<off_t>(oldLength)) != 0 || !isNew)
        return;
    // The path may be a symbolic link; remove the file it points to.
    std::error_code ignored;
    std::filesystem::remove(std::filesystem::canonical(path, ignored), ignored);
}

} // namespace

std::optional<std::vector<std::byte>> readRegularFile(const std::filesystem::path& path, std::size_t limit)
{
    const FileDescriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    const auto length = file.length();
    if (!length || *length > limit)
        return std::nullopt;

    // One byte more than the length, to notice when the file has grown in the meantime.
    std::vector<std::byte> bytes(*length + 1);
    std::size_t end = 0;
    for (;;) {
        const auto count = read(file.number(), bytes.data() + end, bytes.size() - end);
        if (count < 0 && errno != EINTR)
            return std::nullopt;
        if (count == 0)
            break;
        if (count > 0)
            end += static_cast<std::size_t>(count);
        if (end > limit)
            return std::nullopt;
        if (end == bytes.size())
            bytes.resize(2 * end);
    }
    bytes.resize(end);
    return bytes;
}

bool overwriteFile(const std::filesystem::path& path, std::span<const std::byte> bytes)
{
    constexpr int flags = O_WRONLY | O_NONBLOCK | O_CLOEXEC;
    int number = open(path.c_str(), flags);
    const bool isNew = number < 0 && errno == ENOENT;
    if (isNew)
        number = open(path.c_str(), flags | O_CREAT, S_IRUSR | S_IWUSR);
    FileDescriptor file(number);
    const auto oldLength = file.length();
    if (!oldLength)
        return false;
    if (!reserve(file.number(), bytes.size())) {
        undoReserving(path, file.number(), *oldLength, isNew);
        return false;
    }
    return writeAll(file.number(), bytes)
        && (bytes.size() >= *oldLength || ftruncate(file.number(), static_cast<off_t>(bytes.size())) == 0)
        && file.close();
}

} // namespace brimsound::desktop
