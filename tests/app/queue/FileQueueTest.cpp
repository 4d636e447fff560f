#include "app/queue/FileQueue.h"

#include "app/queue/CQueueList.h"
#include "app/queue/CQueueModel.h"

#include <QImage>
#include <QPixmap>
#include <gtest/gtest.h>

using namespace thisapp;

namespace {

QueueEntry file(const char* path, std::int64_t size)
{
    QueueEntry entry{path, {}};
    entry.file.kind = tessaly::platform::FileKind::Regular;
    entry.file.inode = std::hash<std::string>()(path);
    entry.file.size = size;
    return entry;
}

QString reason()
{
    return QStringLiteral("reason");
}

TEST(FileQueueTest, TakesAPathOnceAndCountsWhatBecameOfIt)
{
    FileQueue queue;
    queue.add({file("/a", 100), file("/b", 0), file("/a", 100)});
    queue.add({file("/b", 0), file("/c", 50), file("/d", 7)});
    ASSERT_EQ(queue.size(), 4U);
    EXPECT_EQ(queue.totalSize(), 157);
    EXPECT_TRUE(queue.isFresh());

    queue.begin(true);
    queue.end(1, EntryState::Skipped, reason); // beforehand, and never its turn
    EXPECT_EQ(queue.startNext(), 0U);
    queue.setProcessed(0, 40);
    EXPECT_EQ(queue.progress().processed, 40);
    EXPECT_EQ(queue.progress().total, 101 + 51 + 8);
    tessaly::platform::FileStatus written = file("/a.enc", 156).file;
    queue.setDone(0, "/a.enc", written);
    EXPECT_EQ(queue.doneSize(), 100);
    EXPECT_TRUE(queue.owns(2, "/x", written) && queue.owns(2, "/x", file("/d", 0).file));
    EXPECT_TRUE(queue.owns(2, "/a.enc", {}) && queue.owns(2, "/d", {})) << "whatever stands there by now";
    EXPECT_FALSE(queue.owns(2, "/x", file("/other", 0).file) || queue.owns(2, "/x", {}));
    EXPECT_FALSE(queue.owns(0, "/a.enc", written)) << "its own";
    EXPECT_EQ(queue.startNext(), 2U);
    EXPECT_EQ(queue.position(), 3U);
    queue.end(2, EntryState::Failed, reason);
    EXPECT_EQ(queue.progress().processed, 101);
    EXPECT_EQ(queue.progress().total, 101 + 8) << "a failure is no longer waited for";
    queue.skipRest(reason);
    EXPECT_FALSE(queue.startNext());
    EXPECT_EQ(queue.count().done, 1U);
    EXPECT_EQ(queue.count().failed, 1U);
    EXPECT_EQ(queue.count().skipped, 2U);

    queue.begin(false);
    EXPECT_EQ(queue.runSize(), 3U) << "what is done stays";
    EXPECT_EQ(queue.startNext(), 1U);
    EXPECT_EQ(queue.position(), 1U);
    queue.remove(0);
    EXPECT_EQ(queue.entries()[0].path, "/b");
    queue.end(0, EntryState::Failed, reason);
    EXPECT_EQ(queue.count().failed, 1U) << "its place in the run has gone, too";
}

/// A file's row, as the list paints it in that state.
QImage painted(EntryState state, std::int64_t processed, const char* path = "/a")
{
    FileQueue queue;
    queue.add({file(path, 200)});
    queue.begin(true);
    queue.end(0, state, {});
    queue.setProcessed(0, processed);
    CQueueList list(queue);
    list.resize(400, 200);
    list.refresh();
    return list.grab().toImage();
}

TEST(FileQueueTest, ShowsHowFarAFileIs)
{
    FileQueue queue;
    queue.add({file("/a", 200)});
    queue.begin(true);
    queue.startNext();
    queue.setProcessed(0, 50);
    const CQueueModel model(queue);
    EXPECT_EQ(model.index(0, CQueueModel::State).data().toString(), "Running, 25%");

    EXPECT_NE(painted(EntryState::Running, 50), painted(EntryState::Running, 150)) << "a bar";
    EXPECT_EQ(painted(EntryState::Waiting, 50), painted(EntryState::Waiting, 150)) << "a text";
    EXPECT_NE(painted(EntryState::Waiting, 0), painted(EntryState::Done, 0));
    const std::string name = "/" + std::string(100, 'x');
    EXPECT_NE(painted(EntryState::Waiting, 0, (name + ".enc").c_str()),
              painted(EntryState::Waiting, 0, (name + ".dec").c_str()))
        << "the end of a long name tells files apart";
    const auto glyph = [](EntryState state) {
        FileQueue one;
        one.add({file("/a", 200)});
        one.end(0, state, {});
        return CQueueModel(one).index(0, CQueueModel::State).data(Qt::DecorationRole).value<QPixmap>();
    };
    EXPECT_NE(glyph(EntryState::Failed).toImage(), glyph(EntryState::Done).toImage());
}

} // namespace
