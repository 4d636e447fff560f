#include "app/window/CLookups.h"

#include <QEventLoop>
#include <QTimer>

#include <system_error>
#include <thread>

namespace {

using namespace std::chrono_literals;

/// How long the answer to a command may take, and how long the program's end waits for what is of no
/// use any more.
constexpr auto Patience = 15s;
constexpr auto PatienceAtEnd = 500ms;

bool isDone(const std::future<void>& look)
{
    return look.wait_for(0ms) == std::future_status::ready;
}

} // namespace

CLookups::CLookups() : m_news(new CLookupNews, [](CLookupNews* news) { news->deleteLater(); })
{
    connect(m_news.get(), &CLookupNews::notifyAnswered, this, &CLookups::notifyAnswered,
            Qt::QueuedConnection);
}

CLookups::~CLookups()
{
    const auto end = std::chrono::steady_clock::now() + PatienceAtEnd;
    for (const std::future<void>& look : m_running)
        look.wait_until(end);
}

void CLookups::run(std::function<void()> look)
{
    std::erase_if(m_running, isDone);
    auto task = std::make_shared<std::packaged_task<void()>>([look = std::move(look), news = m_news] {
        look();
        emit news->notifyAnswered();
    });
    m_running.push_back(task->get_future());
    try {
        std::thread([task] { (*task)(); }).detach();
    } catch (const std::system_error&) {
        (*task)();
    }
}

bool CLookups::waitUntil(const std::function<bool()>& isReady)
{
    QEventLoop loop;
    QTimer limit;
    limit.setSingleShot(true);
    connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
    connect(this, &CLookups::notifyAnswered, &loop, [&loop, &isReady] {
        if (isReady())
            loop.quit();
    });
    limit.start(Patience);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    return isReady();
}
