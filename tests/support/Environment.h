#pragma once

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

namespace test {

/// Sets an environment variable (null: unsets it) for as long as it lives.
class Environment
{
public:
    Environment(const char* name, const char* value) : m_name(name)
    {
        if (const char* old = std::getenv(name))
            m_old = old;
        put(value);
    }
    ~Environment() { put(m_old ? m_old->c_str() : nullptr); }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

private:
    void put(const char* value) const
    {
        value != nullptr ? ::setenv(m_name, value, 1) : ::unsetenv(m_name);
        ::tzset();
    }

    const char* m_name;
    std::optional<std::string> m_old;
};

} // namespace test
