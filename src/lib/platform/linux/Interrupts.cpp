#include "lib/platform/Interrupts.h"

#include <array>
#include <atomic>
#include <csignal>
#include <memory>
#include <semaphore.h>
#include <thread>
#include <utility>

namespace tessaly::platform {

namespace {

constexpr std::array CaughtSignals{SIGINT, SIGTERM, SIGHUP};

std::atomic<bool> interrupted = false;
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler writes it");
/// sem_post is one of the few calls that a signal handler may make. Never destroyed: a handler may still
/// be at work on another thread when its Interrupts has ended.
sem_t wakeUp;
[[maybe_unused]] const int wakeUpMade = ::sem_init(&wakeUp, 0, 0);

void onSignal(int)
{
    interrupted = true;
    ::sem_post(&wakeUp);
}

struct sigaction actionOf(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler; // without SA_RESTART, so that a blocked read ends
    return action;
}

} // namespace

void ignoreWriteSignals()
{
    const struct sigaction ignored = actionOf(SIG_IGN);
    for (const int signal : {SIGPIPE, SIGXFSZ})
        ::sigaction(signal, &ignored, nullptr);
}

struct Interrupts::Watcher
{
    std::function<void()> onInterrupt;
    std::atomic<bool> ending = false;
    std::thread thread;
    std::array<struct sigaction, CaughtSignals.size()> before{};

    void run()
    {
        while (!ending) {
            if (::sem_wait(&wakeUp) == 0 && !ending && interrupted)
                onInterrupt();
        }
    }
};

Interrupts::Interrupts(std::function<void()> onInterrupt) : m_watcher(std::make_unique<Watcher>())
{
    m_watcher->onInterrupt = std::move(onInterrupt);
    while (::sem_trywait(&wakeUp) == 0)
        ; // what is left from before
    // The watching thread takes no signals: they are to interrupt the main thread's reads.
    sigset_t caught;
    sigset_t before;
    ::sigemptyset(&caught);
    for (const int signal : CaughtSignals)
        ::sigaddset(&caught, signal);
    ::pthread_sigmask(SIG_BLOCK, &caught, &before);
    try {
        m_watcher->thread = std::thread([this] { m_watcher->run(); });
    } catch (...) {
        ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
        throw;
    }
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    const struct sigaction noticed = actionOf(onSignal);
    for (std::size_t i = 0; i < CaughtSignals.size(); ++i) {
        ::sigaction(CaughtSignals[i], nullptr, &m_watcher->before[i]);
        if (m_watcher->before[i].sa_handler != SIG_IGN)
            ::sigaction(CaughtSignals[i], &noticed, nullptr);
    }
}

Interrupts::~Interrupts()
{
    for (std::size_t i = 0; i < CaughtSignals.size(); ++i)
        ::sigaction(CaughtSignals[i], &m_watcher->before[i], nullptr);
    m_watcher->ending = true;
    ::sem_post(&wakeUp);
    m_watcher->thread.join();
}

bool Interrupts::happened()
{
    return interrupted;
}

} // namespace tessaly::platform
