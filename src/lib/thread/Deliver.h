#pragma once

#include <chrono>
#include <new>
#include <thread>

namespace tessaly::thread {

/// Gives news to another thread by a call that needs memory. They must arrive, whatever the memory is short
/// of: without them that thread would wait for ever. Tries again until it has succeeded.
template <class Call>
void deliver(Call call)
{
    for (;;) {
        try {
            call();
            return;
        } catch (const std::bad_alloc&) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
    }
}

} // namespace tessaly::thread
