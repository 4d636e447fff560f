#include "lib/platform/Terminal.h"

#include "lib/platform/Interrupts.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <poll.h>
#include <string>
#include <string_view>
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

/// The terminal to ask at, while it lives.
class Device
{
public:
    Device() : m_handle(::open("/dev/tty", O_RDWR | O_CLOEXEC | O_NOCTTY))
    {
        if (m_handle < 0 && ::isatty(STDIN_FILENO) == 1)
            m_handle = ::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    }
    ~Device()
    {
        if (isOpen())
            ::close(m_handle);
    }
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;

    bool isOpen() const { return m_handle >= 0; }
    int handle() const { return m_handle; }
    void show(std::string_view text) const
    {
        // Standard input may be one that is open for reading alone.
        if (::write(m_handle, text.data(), text.size()) < 0)
            std::fputs(std::string(text).c_str(), stderr);
    }

private:
    int m_handle;
};

bool isInBackground(int terminal)
{
    const pid_t front = ::tcgetpgrp(terminal);
    return front != -1 && front != ::getpgrp();
}

/// In the background the settings are the shell's own. There the call stops the process until it is in
/// front. False when a signal came instead or there is nobody who could bring it there.
bool awaitForeground(int terminal)
{
    while (!Interrupts::happened()) {
        if (::tcdrain(terminal) == 0)
            return true;
        if (errno != EINTR)
            return false;
    }
    return false;
}

void setTerminal(int terminal, const termios& settings)
{
    const auto isOver = [&] { return Interrupts::happened() && isInBackground(terminal); };
    while (!isOver() && ::tcsetattr(terminal, TCSAFLUSH, &settings) != 0 && errno == EINTR)
        ;
}

/// Shows the prompt, with the echo off and those signals caught for its lifetime.
class HiddenPrompt
{
public:
    HiddenPrompt(const Device& device, const char* prompt) : m_device(device)
    {
        const bool isInFront = awaitForeground(device.handle());
        struct sigaction action = {};
        action.sa_handler = [](int signal) { caughtSignal = signal; };
        for (std::size_t i = 0; i < CaughtSignals.size(); ++i)
            ::sigaction(CaughtSignals[i], &action, &m_handling[i]);
        m_known = isInFront && ::tcgetattr(device.handle(), &m_settings) == 0;
        if (!m_known)
            return;
        // Whatever was left behind, a line ends with Enter, and the keys for signals work.
        termios silent = m_settings;
        silent.c_iflag |= ICRNL;
        silent.c_lflag |= ICANON | ISIG;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        setTerminal(device.handle(), silent);
        device.show(prompt);
    }
    ~HiddenPrompt()
    {
        if (m_known) {
            m_device.show("\n");
            setTerminal(m_device.handle(), m_settings);
        }
        for (std::size_t i = 0; i < CaughtSignals.size(); ++i)
            ::sigaction(CaughtSignals[i], &m_handling[i], nullptr);
    }
    HiddenPrompt(const HiddenPrompt&) = delete;
    HiddenPrompt& operator=(const HiddenPrompt&) = delete;

private:
    const Device& m_device;
    std::array<struct sigaction, CaughtSignals.size()> m_handling = {};
    termios m_settings = {};
    bool m_known = false;
};

/// Waits a moment for input. A signal that comes just before the wait is seen after it.
bool hasInput(int terminal)
{
    pollfd input{terminal, POLLIN, 0};
    return ::poll(&input, 1, 100) > 0;
}

} // namespace

bool canAsk()
{
    return Device().isOpen();
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
    const Device device;
    if (!device.isOpen())
        return false;
    std::optional<HiddenPrompt> shown(std::in_place, device, prompt);
    while (!Interrupts::happened()) {
        if (const int signal = caughtSignal.exchange(0)) {
            line.clear();
            shown.reset();
            if (signal != SIGCONT)
                ::raise(signal);
            shown.emplace(device, prompt);
        }
        if (!hasInput(device.handle()))
            continue;
        std::uint8_t byte = 0;
        const ssize_t count = ::read(device.handle(), &byte, 1);
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
