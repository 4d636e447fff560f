#include "lib/platform/Terminal.h"

#include "lib/platform/Interrupts.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <optional>
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace tessaly::platform {

namespace {

/// What would stop or end the process with the echo off; and the end of a stop, since the shell sets
/// the terminal as it likes in between. Interrupts has the others.
constexpr std::array CaughtSignals{SIGTSTP, SIGQUIT, SIGCONT};

std::atomic<int> caughtSignal = 0;
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler writes it");

bool isInBackground()
{
    const pid_t front = ::tcgetpgrp(STDIN_FILENO);
    return front != -1 && front != ::getpgrp();
}

/// In the background the settings are the shell's own. There the call stops the process until it is in
/// front. False when a signal came instead or there is nobody who could bring it there.
bool awaitForeground()
{
    while (!Interrupts::happened()) {
        if (::tcdrain(STDIN_FILENO) == 0)
            return true;
        if (errno != EINTR)
            return false;
    }
    return false;
}

void setTerminal(const termios& settings)
{
    const auto isOver = [] { return Interrupts::happened() && isInBackground(); };
    while (!isOver() && ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &settings) != 0 && errno == EINTR)
        ;
}

/// Shows the prompt, with the echo off and those signals caught for its lifetime.
class HiddenPrompt
{
public:
    explicit HiddenPrompt(const char* prompt)
    {
        const bool isInFront = awaitForeground();
        struct sigaction action = {};
        action.sa_handler = [](int signal) { caughtSignal = signal; };
        for (std::size_t i = 0; i < CaughtSignals.size(); ++i)
            ::sigaction(CaughtSignals[i], &action, &m_handling[i]);
        m_known = isInFront && ::tcgetattr(STDIN_FILENO, &m_settings) == 0;
        if (!m_known)
            return;
        // Whatever was left behind, a line ends with Enter, and the keys for signals work.
        termios silent = m_settings;
        silent.c_iflag |= ICRNL;
        silent.c_lflag |= ICANON | ISIG;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        setTerminal(silent);
        std::fputs(prompt, stderr);
    }
    ~HiddenPrompt()
    {
        if (m_known) {
            std::fputc('\n', stderr);
            setTerminal(m_settings);
        }
        for (std::size_t i = 0; i < CaughtSignals.size(); ++i)
            ::sigaction(CaughtSignals[i], &m_handling[i], nullptr);
    }
    HiddenPrompt(const HiddenPrompt&) = delete;
    HiddenPrompt& operator=(const HiddenPrompt&) = delete;

private:
    std::array<struct sigaction, CaughtSignals.size()> m_handling = {};
    termios m_settings = {};
    bool m_known = false;
};

/// Waits a moment for input. A signal that comes just before the wait is seen after it.
bool hasInput()
{
    pollfd input{STDIN_FILENO, POLLIN, 0};
    return ::poll(&input, 1, 100) > 0;
}

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

bool readHiddenLine(const char* prompt, SecretBytes& line)
{
    line.clear();
    std::optional<HiddenPrompt> shown(std::in_place, prompt);
    while (!Interrupts::happened()) {
        if (const int signal = caughtSignal.exchange(0)) {
            line.clear();
            shown.reset();
            if (signal != SIGCONT)
                ::raise(signal);
            shown.emplace(prompt);
        }
        if (!hasInput())
            continue;
        std::uint8_t byte = 0;
        const ssize_t count = ::read(STDIN_FILENO, &byte, 1);
        if (count == 1 && byte == '\n')
            return true;
        if (count == 1)
            line.push_back(byte);
        else if (count == 0 || errno != EINTR)
            return false;
    }
    return false;
}

} // namespace tessaly::platform
