#pragma once

#include "lib/err/IErrMsg.h"
#include "lib/err/ResultCode.h"

#include <array>
#include <string>
#include <string_view>

namespace tessaly::err::internal {

/// Composes the one line that tells the user of a failure: "Corrupted data (error: 5/4003)".
template <class TChar>
class CErrMsgBuilder final
{
public:
    using String = std::basic_string<TChar>;
    using View = std::basic_string_view<TChar>;

    /// texts must outlive the builder.
    explicit CErrMsgBuilder(const IErrMsg<TChar>& texts) : m_texts(texts) {}

    /// The text of the first error that has one, else the sentence; then the code of the last error
    /// as category/number. Empty when all the errors are success.
    String build(View sentence, ResultCode first, ResultCode second = {}, ResultCode third = {}) const
    {
        const std::array errors = {first, second, third};
        ResultCode shown;
        String line;
        for (const ResultCode error : errors) {
            if (error.ok())
                continue;
            shown = error;
            if (line.empty())
                line = text(error);
        }
        if (shown.ok())
            return {};
        if (line.empty())
            line = trimmed(sentence);
        if (!line.empty())
            line += TChar(' ');
        return append(line,
                      "(error: " + std::to_string(shown.category) + "/" + std::to_string(shown.code) + ")");
    }

private:
    String text(ResultCode error) const
    {
        String found;
        return m_texts.lookup(error.category, error.code, found) ? String(trimmed(found)) : String();
    }

    static View trimmed(View text)
    {
        constexpr TChar Blanks[] = {' ', '\t', '\n', '\v', '\f', '\r', 0};
        const auto first = text.find_first_not_of(Blanks);
        return first == View::npos ? View() : text.substr(first, text.find_last_not_of(Blanks) + 1 - first);
    }

    static String append(String line, std::string_view ascii)
    {
        return line.append(ascii.begin(), ascii.end());
    }

    const IErrMsg<TChar>& m_texts;
};

} // namespace tessaly::err::internal
