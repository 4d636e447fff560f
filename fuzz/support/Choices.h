#pragma once

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <limits>
#include <span>
#include <vector>

namespace fuzz {

using Bytes = std::vector<std::uint8_t>;

/// What a harness chooses by the bytes that the fuzzer made.
class Choices : public FuzzedDataProvider
{
public:
    using FuzzedDataProvider::FuzzedDataProvider;

    template <class Number>
    Number upTo(Number most)
    {
        return ConsumeIntegralInRange<Number>(0, most);
    }
    template <class Row>
    const Row& oneOf(std::span<const Row> rows)
    {
        return rows[upTo(rows.size() - 1)];
    }
    /// True once in so many times.
    bool seldom(unsigned times) { return upTo(times - 1) == times - 1; }

    /// Any number, most often one at which something may wrap or end.
    std::uint64_t hostileNumber(std::uint64_t honest)
    {
        constexpr auto Most = std::numeric_limits<std::uint64_t>::max();
        switch (upTo(5)) {
        case 0:
            return honest + upTo<std::uint64_t>(256) - 128;
        case 1:
            return Most - upTo<std::uint64_t>(256);
        case 2:
            return Most / 2 + upTo<std::uint64_t>(256) - 128;
        case 3:
            return std::uint64_t{1} << upTo(63);
        case 4:
            return ConsumeIntegral<std::uint64_t>();
        default:
            return honest;
        }
    }

    /// Bytes without any order; the fuzzer gives the seed only, and need not learn the length byte by byte.
    Bytes noise(std::size_t count)
    {
        Bytes bytes(count);
        std::uint32_t state = ConsumeIntegral<std::uint16_t>() * 2654435761U;
        for (std::uint8_t& byte : bytes) {
            state = state * 1664525U + 1013904223U;
            byte = static_cast<std::uint8_t>(state >> 24);
        }
        return bytes;
    }
};

} // namespace fuzz
