#pragma once

#include "app/window/CLookupNews.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <utility>
#include <vector>

/// Looks at files on threads of its own, as a slow or dead file system may keep a look for any time. A
/// look that hangs is left to itself: nobody waits for it for long, its owner's end included. It must
/// therefore touch nothing but what it owns. Used on the GUI thread.
class CLookups final : public QObject
{
    Q_OBJECT

public:
    CLookups();
    /// Gives what is still under way a moment.
    ~CLookups() override;

    /// Calls the function on another thread. notifyAnswered follows, when the event loop runs, and not
    /// before the future is ready. Where no thread can be had it is called at once.
    template <class T>
    std::shared_future<T> start(std::function<T()> look)
    {
        auto promise = std::make_shared<std::promise<T>>();
        std::shared_future<T> answer = promise->get_future().share();
        run([promise, look = std::move(look)] {
            try {
                promise->set_value(look());
            } catch (...) {
                promise->set_value(T{}); // out of memory, say: nothing was seen
            }
        });
        return answer;
    }

    /// False when there is no answer within the time; nothing happens in the window meanwhile.
    template <class T>
    static bool waitBriefly(const std::shared_future<T>& answer)
    {
        return answer.wait_for(Moment) == std::future_status::ready;
    }

    /// False when there is no answer for so long that it is useless to wait. The window stays painted
    /// meanwhile, but takes no input.
    template <class T>
    bool wait(const std::shared_future<T>& answer)
    {
        return waitBriefly(answer) ||
               waitUntil([&answer] { return answer.wait_for(Nothing) == std::future_status::ready; });
    }

signals:
    /// One of the futures is ready.
    void notifyAnswered();

private:
    static constexpr std::chrono::milliseconds Nothing{0};
    /// Too short to be felt.
    static constexpr std::chrono::milliseconds Moment{50};

    void run(std::function<void()> look);
    bool waitUntil(const std::function<bool()>& isReady);

    /// Shared with the threads, which may outlive this object.
    std::shared_ptr<CLookupNews> m_news;
    std::vector<std::future<void>> m_running;
};
