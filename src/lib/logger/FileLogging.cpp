#include "lib/logger/FileLogging.h"

#include "lib/logger/Log.h"
#include "lib/logger/LogAppenderUtf8File.h"
#include "lib/platform/Folders.h"

#include <exception>
#include <utility>

namespace tessaly::logger {

namespace {

constexpr std::uint64_t FileAppenderId = 1;
constexpr const char* Source = "mainwindow";

std::string plainErrorText(ResultCode result)
{
    return std::to_string(result.category) + "/" + std::to_string(result.code);
}

/// Null without a path or memory for it.
std::shared_ptr<LogAppenderUtf8File> makeAppender(const std::string& path)
try {
    if (path.empty())
        return nullptr;
    return {new LogAppenderUtf8File(FileAppenderId, path), internal::TAppenderDeleter()};
} catch (const std::exception&) {
    return nullptr;
}

internal::LogSender<char>& sender()
{
    return *internal::LogSender<char>::instance();
}

} // namespace

std::string FileLogging::defaultPath()
{
    const std::string folder = platform::stateFolder();
    return folder.empty() ? folder : folder + "/quillet/quillet.log";
}

FileLogging::FileLogging(std::string path, ErrorText errorText)
    : m_path(std::move(path)), m_errorText(errorText ? std::move(errorText) : plainErrorText)
{
    setLevel(Off);
}

FileLogging::~FileLogging()
{
    setLevel(Off);
    stop();
}

void FileLogging::setLevel(std::uint32_t level)
{
    sender().setLevel(level);
}

void FileLogging::setLogFileUsed(bool used)
{
    m_problem.clear();
    if (used && !m_appender)
        start();
    else if (!used)
        stop();
}

void FileLogging::start()
{
    const auto appender = makeAppender(m_path);
    if (!appender)
        return fail("Failed to create file logger.");
    if (const ResultCode result = appender->start(); !result.ok())
        return fail("Failed to start file logger. Error: " + m_errorText(result));
    if (const ResultCode result = sender().appenders().add(appender->id(), appender); !result.ok())
        return fail("Failed to add file logger. Error: " + m_errorText(result));
    m_appender = appender;
    log(Trace, Source) << "File logger was started.";
}

void FileLogging::fail(std::string problem)
{
    m_problem = std::move(problem);
    log(Error, Source) << m_problem;
}

void FileLogging::stop()
{
    if (!m_appender)
        return;
    sender().appenders().remove(m_appender->id());
    m_appender->stop();
    m_appender.reset();
}

} // namespace tessaly::logger
