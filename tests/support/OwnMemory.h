#pragma once

#include "lib/secret/Secret.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <string>
#include <string_view>
#include <unistd.h>

namespace test {

/// Whether the text stands anywhere in what this program can write to. No copy of it remains. The text may
/// be given with a mask on each byte, so that the one that is given isn't found.
inline bool isInMemory(std::string_view masked, char mask = 0)
{
    tessaly::SecretBytes chunk(1 << 20);
    const int memory = open("/proc/self/mem", O_RDONLY | O_CLOEXEC);
    bool found = false;
    constexpr std::uintptr_t Most = 1UL << 30; // what is larger is a sanitizer's own
    std::ifstream maps("/proc/self/maps");
    for (std::string line; !found && std::getline(maps, line);) {
        std::uintptr_t at = 0;
        std::uintptr_t end = 0;
        char access[5] = "";
        if (std::sscanf(line.c_str(), "%zx-%zx %4s", &at, &end, access) != 3 || access[1] != 'w' ||
            end - at > Most)
            continue;
        while (!found && at < end) {
            const ssize_t got = pread(memory, chunk.data(), std::min(chunk.size(), end - at), off_t(at));
            if (got <= 0)
                break;
            const std::uint8_t* begin = chunk.data();
            const auto isSame = [mask](std::uint8_t a, char b) {
                return a == static_cast<std::uint8_t>(b ^ mask);
            };
            found = mask == 0 ? memmem(begin, std::size_t(got), masked.data(), masked.size()) != nullptr
                              : std::search(begin, begin + got, masked.begin(), masked.end(), isSame) !=
                                    begin + got;
            at += std::size_t(got);
        }
    }
    close(memory);
    return found;
}

} // namespace test
