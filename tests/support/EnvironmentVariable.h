#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace brimsound::tests {

/// Sets an environment variable, or removes it when the value is null. The destructor restores the old value.
class EnvironmentVariable {
public:
    EnvironmentVariable(const char* name, const char* value)
        : _name(name)
    {
        if (const char* before = std::getenv(name))
            _before = before;
        set(value);
    }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;
    ~EnvironmentVariable() { set(_before ? _before->c_str() : nullptr); }

private:
    void set(const char* value)
    {
        if (value)
            setenv(_name, value, 1);
        else
            unsetenv(_name);
    }

    const char* _name;
    std::optional<std::string> _before;
};

} // namespace brimsound::tests
