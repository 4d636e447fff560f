#include "lib/platform/Terminal.h"

#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace tessaly::platform {

namespace {

/// Switches the echo of standard input off for its lifetime.
class EchoOff
{
public:
    EchoOff()
    {
        m_known = ::tcgetattr(STDIN_FILENO, &m_before) == 0;
        termios silent = m_before;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        if (m_known)
            ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent);
    }
    ~EchoOff()
    {
        if (m_known)
            ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &m_before);
    }
    EchoOff(const EchoOff&) = delete;
    EchoOff& operator=(const EchoOff&) = delete;

private:
    termios m_before = {};
    bool m_known = false;
};

} // namespace

bool isInputTerminal()
{
    return ::isatty(STDIN_FILENO) == 1;
}

bool isErrorTerminal()
{
    return ::isatty(STDERR_FILENO) == 1;
}

unsigned errorTerminalWidth()
{
    winsize size = {};
    return ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

bool readHiddenLine(SecretBytes& line)
{
    line.clear();
    const EchoOff echoOff;
    std::uint8_t byte = 0;
    while (::read(STDIN_FILENO, &byte, 1) == 1) {
        if (byte == '\n')
            return true;
        line.push_back(byte);
    }
    return false;
}

} // namespace tessaly::platform
