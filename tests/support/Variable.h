#pragma once

#ifndef _WIN32

#include <cstdlib>
#include <optional>
#include <string>

namespace vypx::test {

/// A variable of the environment that has another value, or none, as long as this object lives.
class Variable {
public:
    Variable(const char* name, const char* value)
        : m_name(name)
    {
        if (const char* const before = std::getenv(name))
            m_before = before;
        Set(value);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() { Set(m_before ? m_before->c_str() : nullptr); }

private:
    void Set(const char* value) const
    {
        if (value)
            ::setenv(m_name.c_str(), value, 1);
        else
            ::unsetenv(m_name.c_str());
    }

    std::string m_name;
    std::optional<std::string> m_before;
};

} // namespace vypx::test

#endif
