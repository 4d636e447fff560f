#include "crypto/Engine.h"
#include "support/DataRows.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

namespace {

using namespace test;

/// Rows: algorithm, key, then plain block and cipher block, or IV and the start of the key stream.
TEST(Vectors, EveryPublishedVectorHolds)
{
    std::set<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(TEST_DATA_DIR "/vectors"))
        files.insert("vectors/" + entry.path().filename().string());
    ASSERT_GE(files.size(), 20U);
    for (const std::string& file : files)
        for (const Row& row : dataRows(file)) {
            SCOPED_TRACE(file + ": " + row.at(0) + " " + row.at(1));
            const CatalogueEntry* algorithm = tessaly::crypto::findAlgorithm(row[0]);
            ASSERT_NE(algorithm, nullptr);
            const Bytes expected = fromHex(row.at(3));
            EXPECT_EQ(algorithm->record.stream
                          ? keyStream(*algorithm, fromHex(row[1]), fromHex(row[2]), expected.size())
                          : enciphered(*algorithm, fromHex(row[1]), fromHex(row[2])),
                      expected);
        }
}

} // namespace
