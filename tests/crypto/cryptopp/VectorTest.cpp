#include "crypto/Engine.h"
#include "support/DataRows.h"

#include <gtest/gtest.h>

namespace {

using namespace test;

/// Rows: algorithm, key, then plain block and cipher block, or IV and the start of the key stream.
TEST(Vectors, EveryPublishedVectorHolds)
{
    const auto rows = dataRows("vectors");
    EXPECT_GT(rows.size(), 60U);
    for (const Row& row : rows) {
        const Bytes expected = fromHex(row.at(3));
        EXPECT_EQ(enciphered(*findAlgorithm(row[0]), fromHex(row[1]), fromHex(row[2]), expected.size()),
                  expected)
            << row[0] << ' ' << row[1];
    }
}

} // namespace
