#pragma once

#include "lib/logger/ILogRecBase.h"
#include "lib/platform/Path.h"

#include <array>
#include <concepts>
#include <cstddef>
#include <locale>
#include <sstream>
#include <string_view>
#include <type_traits>

namespace tessaly::logger::internal {

/// The stream operators of a record. They collect nothing while the record's level isn't logged.
template <class Char>
class LogRec_Impl : public ILogRecBase<Char>
{
public:
    template <class Number>
    requires std::is_arithmetic_v<Number> LogRec_Impl& operator<<(Number value) { return append(value); }
    LogRec_Impl& operator<<(std::string_view text) { return append(text); }
    LogRec_Impl& operator<<(const char* text) { return append(text != nullptr ? text : ""); }
    LogRec_Impl& operator<<(std::wstring_view text) { return append(platform::nativePath(text)); }
    LogRec_Impl& operator<<(const wchar_t* text)
    {
        return append(platform::nativePath(text != nullptr ? text : L""));
    }

    /// Pairs, as result codes are: 1 2 3 4 give 1/2,3/4.
    template <std::integral Number, std::size_t Count>
    requires(Count == 4 || Count == 6) LogRec_Impl& operator<<(const std::array<Number, Count>& numbers)
    {
        for (std::size_t i = 0; i < Count; ++i) {
            if (i > 0)
                append(i % 2 == 0 ? ',' : '/');
            append(numbers[i]);
        }
        return *this;
    }

protected:
    LogRec_Impl() { m_stream.imbue(std::locale::classic()); }

    virtual bool isEnabled() const = 0;

    std::basic_ostringstream<Char> m_stream;

private:
    template <class T>
    LogRec_Impl& append(const T& value)
    {
        if (isEnabled())
            m_stream << value;
        return *this;
    }
};

} // namespace tessaly::logger::internal
