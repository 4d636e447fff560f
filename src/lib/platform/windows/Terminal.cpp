#include "lib/platform/Terminal.h"

#include "lib/platform/Interrupts.h"
#include "lib/platform/Path.h"
#include "lib/platform/windows/Console.h"
#include "lib/platform/windows/SystemCall.h"
#include "lib/platform/windows/SystemPath.h"
#include "lib/platform/windows/Wait.h"

#include <array>
#include <string>

namespace tessaly::platform {

namespace {

OwnHandle openConsole(const wchar_t* name)
{
    return OwnHandle(
        ::CreateFileW(name, GENERIC_READ | GENERIC_WRITE, ShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
}

void show(HANDLE console, std::wstring_view text)
{
    DWORD shown = 0;
    ::WriteConsoleW(console, text.data(), static_cast<DWORD>(text.size()), &shown, nullptr);
}

/// Shows the prompt, with lines read whole and not shown for its lifetime.
class HiddenPrompt
{
public:
    HiddenPrompt(HANDLE input, HANDLE output, const char* prompt) : m_input(input), m_output(output)
    {
        m_known = ::GetConsoleMode(input, &m_mode) != FALSE;
        if (!m_known)
            return;
        ::FlushConsoleInputBuffer(input);
        constexpr DWORD Echo = ENABLE_ECHO_INPUT;
        ::SetConsoleMode(input, (m_mode | ENABLE_LINE_INPUT | ENABLE_PROCESSED_INPUT) & ~Echo);
        show(output, widePath(prompt));
    }
    ~HiddenPrompt()
    {
        if (!m_known)
            return;
        show(m_output, L"\r\n");
        ::SetConsoleMode(m_input, m_mode);
    }
    HiddenPrompt(const HiddenPrompt&) = delete;
    HiddenPrompt& operator=(const HiddenPrompt&) = delete;

    bool isShown() const { return m_known; }

private:
    HANDLE m_input;
    HANDLE m_output;
    DWORD m_mode = 0;
    bool m_known = false;
};

/// A piece of a line as typed, wiped at its end.
struct Piece
{
    std::array<wchar_t, 256> text{};
    DWORD size = 0;

    Piece() = default;
    ~Piece() { wipe(text.data(), sizeof text); }
    Piece(const Piece&) = delete;
    Piece& operator=(const Piece&) = delete;

    bool endsLine() const { return size > 0 && text[size - 1] == L'\n'; }
    bool endsInPair() const { return size > 0 && (text[size - 1] & 0xFC00) == 0xD800; }
};

/// An empty answer means Ctrl-C, of which the handler, on another thread, may not have heard yet.
void awaitInterrupt()
{
    constexpr int Steps = 100;
    for (int i = 0; i < Steps && !Interrupts::happened(); ++i)
        ::Sleep(10);
}

bool readPiece(HANDLE input, Piece& piece)
{
    const Wait wait;
    DWORD got = 0;
    // One character less than there is room for: the other half of a pair may have to follow.
    if (Interrupts::happened() ||
        !::ReadConsoleW(input, piece.text.data(), static_cast<DWORD>(piece.text.size() - 1), &got, nullptr))
        return false;
    piece.size = got;
    if (piece.endsInPair() && ::ReadConsoleW(input, piece.text.data() + got, 1, &got, nullptr))
        piece.size += got;
    if (piece.size == 0)
        awaitInterrupt();
    return piece.size > 0;
}

void append(SecretBytes& line, const Piece& piece)
{
    DWORD size = piece.size;
    while (size > 0 && (piece.text[size - 1] == L'\n' || piece.text[size - 1] == L'\r'))
        --size;
    std::array<char, 3 * std::tuple_size_v<decltype(Piece::text)>> bytes{};
    const int count = ::WideCharToMultiByte(CP_UTF8, 0, piece.text.data(), static_cast<int>(size),
                                            bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
    for (int i = 0; i < count; ++i)
        line.push_back(static_cast<std::uint8_t>(bytes[static_cast<std::size_t>(i)]));
    wipe(bytes.data(), bytes.size());
}

} // namespace

bool canAsk()
{
    // A program that has no console to be seen may have a hidden one, as under a terminal of another system.
    return (isConsole(STD_ERROR_HANDLE) || isConsole(STD_OUTPUT_HANDLE) || isConsole(STD_INPUT_HANDLE)) &&
           openConsole(L"CONIN$");
}

bool isErrorTerminal()
{
    return isConsole(STD_ERROR_HANDLE);
}

unsigned errorTerminalWidth()
{
    CONSOLE_SCREEN_BUFFER_INFO info = {};
    if (!::GetConsoleScreenBufferInfo(::GetStdHandle(STD_ERROR_HANDLE), &info))
        return 80;
    return static_cast<unsigned>(info.srWindow.Right - info.srWindow.Left + 1);
}

bool readHiddenLine(const char* prompt, SecretBytes& line)
{
    line.clear();
    const OwnHandle input = openConsole(L"CONIN$");
    const OwnHandle output = openConsole(L"CONOUT$");
    if (!input || !output)
        return false;
    const HiddenPrompt shown(input.get(), output.get(), prompt);
    while (shown.isShown()) {
        Piece piece;
        if (!readPiece(input.get(), piece)) {
            line.clear();
            return false;
        }
        append(line, piece);
        if (piece.endsLine())
            return true;
    }
    return false;
}

} // namespace tessaly::platform
