#pragma once

#include "lib/sync/ISignalable.h"

#include <memory>

namespace tessaly::sync {

/// A manual-reset event, initially not set. Any thread may call any operation. An event that
/// could not be created leaves the object invalid: it then answers (5, 4) or false.
class Signal final : public ISignalable
{
public:
    Signal();
    ~Signal() override;
    Signal(const Signal&) = delete;
    Signal& operator=(const Signal&) = delete;

    bool isValid() const override;
    ResultCode set() override;
    ResultCode reset() override;
    [[nodiscard]] bool wait(unsigned milliseconds) override;
    [[nodiscard]] bool wait() override;

private:
    class Event;
    std::unique_ptr<Event> m_event;
};

} // namespace tessaly::sync
