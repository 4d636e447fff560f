#pragma once

#include "lib/logger/Level.h"
#include "lib/logger/LogRec.h"
#include "lib/logger/LogSender.h"

#include <string_view>

namespace tessaly::logger {

/// One log line: `logger::log(logger::Information, "mainwindow") << "Opened " << path;`
/// It costs about a microsecond while the level isn't logged. Never hand it a secret. Any thread.
inline internal::LogRec<char> log(Level level, std::string_view source)
{
    return internal::LogRec<char>(internal::LogSender<char>::instance(), level, source);
}

} // namespace tessaly::logger
