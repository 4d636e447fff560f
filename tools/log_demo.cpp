// Logs at every level from four threads and prints the file that comes of it.
// log_demo [LEVEL [FILE]]: the level is a number from 0 to 6; the file is kept when it is named.
#include "lib/logger/FileLogging.h"
#include "lib/logger/Log.h"
#include "support/TempFolder.h"

#include <chrono>
#include <cstdint>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

using namespace tessaly;

int main(int argc, char** argv)
{
    const test::TempFolder folder;
    const auto level = argc > 1 ? static_cast<std::uint32_t>(std::stoul(argv[1])) : logger::Trace;
    logger::FileLogging logging(argc > 2 ? argv[2] : folder / "quillet.log");
    logging.setLevel(level);
    logging.setLogFileUsed(true);

    std::vector<std::thread> threads;
    for (int number = 1; number <= 4; ++number)
        threads.emplace_back([number] {
            for (const auto& row : logger::levels<char>)
                logger::log(row.level, "demo")
                    << row.name.view() << " from thread " << number << ", step " << std::uint32_t(row.level)
                    << ": caf\u00E9 " << L"\u65E5\u672C" << "\n";
        });
    for (auto& thread : threads)
        thread.join();

    // Stopping discards what isn't written yet.
    const std::size_t expected = 4 * level + (level == logger::Trace ? 1 : 0);
    for (int i = 0; i < 5000 && test::readLines(logging.path()).size() < expected; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    std::cout << test::readFile(logging.path());
    return test::readLines(logging.path()).size() >= expected ? 0 : 1;
}
