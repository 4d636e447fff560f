#pragma once

#include "ui/disk/CDiskNews.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <utility>
#include <vector>

/// Does what touches the disk on threads of its own, as a slow or dead file system may keep it for any
/// time. Work that hangs is left to itself: nobody waits for it for long, its owner's end included. It
/// must therefore touch nothing but what it owns. Used on the GUI thread.
class CDiskWork final : public QObject
{
    Q_OBJECT

public:
    CDiskWork();
    /// Gives what is still under way a moment.
    ~CDiskWork() override;

    /// Calls the function on another thread. notifyAnswered follows, when the event loop runs, and not
    /// before the future is ready. Where no thread can be had it is called at once. An exception gives a
    /// default-constructed answer.
    template <class T>
    std::shared_future<T> start(std::function<T()> work)
    {
        auto promise = std::make_shared<std::promise<T>>();
        std::shared_future<T> answer = promise->get_future().share();
        run([promise, work = std::move(work)] {
            try {
                promise->set_value(work());
            } catch (...) {
                promise->set_value(T{}); // out of memory, say
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

    void run(const std::function<void()>& work);
    bool waitUntil(const std::function<bool()>& isReady);

    /// Shared with the threads, which may outlive this object.
    std::shared_ptr<CDiskNews> m_news;
    std::vector<std::future<void>> m_running;
};
