#include "ui/disk/CDiskWork.h"

#include "lib/thread/Deliver.h"

#include <QEventLoop>
#include <QTimer>

#include <exception>
#include <thread>
#include <utility>

namespace {

using namespace std::chrono_literals;

/// How long the answer to a command may take, and how long the program's end waits for what is of no
/// use any more.
constexpr auto Patience = 15s;
constexpr auto PatienceAtEnd = 500ms;

bool isDone(const std::future<void>& work)
{
    return work.wait_for(0ms) == std::future_status::ready;
}

/// On a thread that nobody joins. It may not end before it is detached: winpthreads would hand its record to
/// the next thread, and the end then clear it under that one's feet.
void runAlone(std::packaged_task<void()> work)
{
    std::promise<void> detached;
    std::thread([work = std::move(work), mayEnd = detached.get_future()]() mutable {
        work();
        mayEnd.wait();
    }).detach();
    detached.set_value();
}

} // namespace

CDiskWork::CDiskWork() : m_news(new CDiskNews, [](CDiskNews* news) { news->deleteLater(); })
{
    connect(m_news.get(), &CDiskNews::notifyAnswered, this, &CDiskWork::notifyAnswered, Qt::QueuedConnection);
}

CDiskWork::~CDiskWork()
{
    const auto end = std::chrono::steady_clock::now() + PatienceAtEnd;
    for (const std::future<void>& work : m_running)
        work.wait_until(end);
}

void CDiskWork::run(const std::function<void()>& work)
{
    try {
        std::erase_if(m_running, isDone);
        std::packaged_task<void()> task([work, news = m_news] {
            work();
            tessaly::thread::deliver([&news] { emit news->notifyAnswered(); });
        });
        m_running.push_back(task.get_future());
        runAlone(std::move(task));
    } catch (const std::exception&) { // no thread, or no memory for one
        work();
        emit m_news->notifyAnswered();
    }
}

bool CDiskWork::waitUntil(const std::function<bool()>& isReady)
{
    QEventLoop loop;
    QTimer limit;
    limit.setSingleShot(true);
    connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
    connect(this, &CDiskWork::notifyAnswered, &loop, [&loop, &isReady] {
        if (isReady())
            loop.quit();
    });
    limit.start(Patience);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    return isReady();
}
