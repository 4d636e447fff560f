#pragma once

#include <functional>
#include <memory>

namespace tessaly::platform {

/// A file-size limit or a closed pipe becomes an ordinary error of the write.
void ignoreWriteSignals();

/// While it lives, Ctrl-C, a hang-up or a request to terminate does not end the process: it is
/// remembered, interrupts a blocking read, and calls `onInterrupt` on a thread of its own. A signal that
/// the process was started to ignore stays ignored; afterwards all is as it was before. One at a time in
/// a process. Throws std::system_error when there can be no thread.
class Interrupts
{
public:
    explicit Interrupts(std::function<void()> onInterrupt);
    ~Interrupts();
    Interrupts(const Interrupts&) = delete;
    Interrupts& operator=(const Interrupts&) = delete;

    static bool happened();

private:
    struct Watcher;
    std::unique_ptr<Watcher> m_watcher;
};

} // namespace tessaly::platform
