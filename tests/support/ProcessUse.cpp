#include "tests/support/ProcessUse.h"

#include <dlfcn.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>

namespace brimsound::tests {

namespace {

std::string folderOf(pid_t process)
{
    return "/proc/" + std::to_string(process);
}

} // namespace

std::size_t residentBytes(pid_t process)
{
    std::size_t pages = 0;
    std::size_t residentPages = 0;
    std::ifstream(folderOf(process) + "/statm") >> pages >> residentPages;
    return residentPages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

std::size_t openDescriptors(pid_t process)
{
    std::error_code ended;
    const std::filesystem::directory_iterator descriptors(folderOf(process) + "/fd", ended);
    return static_cast<std::size_t>(std::distance(begin(descriptors), end(descriptors)));
}

bool isSanitized()
{
    return dlsym(RTLD_DEFAULT, "__asan_init") != nullptr;
}

} // namespace brimsound::tests
