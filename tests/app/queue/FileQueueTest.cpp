#include "app/queue/FileQueue.h"

#include "app/queue/CQueueList.h"
#include "app/queue/CQueueModel.h"

#include <QtGui>
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

TEST(FileQueueTest, CountsWhatBecameOfItsFiles)
{
    FileQueue queue;
    queue.add({file("/a", 100), file("/b", 0), file("/a", 100)});
    queue.add({file("/b", 0), file("/c", 50), file("/d", 7)});
    EXPECT_EQ(queue.totalSize(), 157) << "each of the four once";
    queue.begin(true);
    queue.end(1, EntryState::Skipped, {}); // beforehand, and never its turn
    EXPECT_EQ(queue.startNext(), 0U);
    queue.setProcessed(0, 40);
    EXPECT_EQ(queue.progress().processed, 40);
    EXPECT_EQ(queue.progress().total, 101 + 51 + 8);
    const auto written = file("/a.enc", 156).file;
    queue.setDone(0, "/a.enc", written);
    EXPECT_TRUE(queue.owns(2, "/x", written) && queue.owns(2, "/x", file("/d", 0).file));
    EXPECT_TRUE(queue.owns(2, "/a.enc", {}) && queue.owns(2, "/d", {})) << "whatever stands there by now";
    EXPECT_FALSE(queue.owns(2, "/x", file("/other", 0).file) || queue.owns(2, "/x", {}));
    EXPECT_FALSE(queue.owns(0, "/a.enc", written)) << "its own";
    EXPECT_EQ(queue.startNext(), 2U);
    EXPECT_EQ(queue.position(), 3U);
    queue.end(2, EntryState::Failed, [] { return QString("why"); });
    EXPECT_EQ(queue.progress().processed, 101);
    EXPECT_EQ(queue.progress().total, 101 + 8) << "a failure is no longer waited for";

    queue.begin(false);
    EXPECT_EQ(queue.runSize(), 3U) << "what is done stays";
    EXPECT_FALSE(queue.entries()[2].reason) << "it is tried again";
    EXPECT_EQ(queue.startNext(), 1U);
    EXPECT_EQ(queue.position(), 1U);
    queue.remove(0);
    queue.end(0, EntryState::Failed, {});
    EXPECT_EQ(queue.count().failed, 1U) << "its place in the run has gone, too";
}

/// A file's row, as the list paints it in that state.
QImage painted(EntryState state, std::int64_t processed = 0, const char* path = "/a")
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
    using enum EntryState;
    FileQueue queue;
    const CQueueModel model(queue);
    queue.add({file("/<a>", 200)});
    queue.begin(true);
    queue.startNext();
    queue.setProcessed(0, 50);
    const QModelIndex state = model.index(0, CQueueModel::State);
    EXPECT_EQ(state.data().toString(), "Running, 25%");
    const QModelIndex name = model.index(0, CQueueModel::Name);
    EXPECT_EQ(name.data(Qt::ToolTipRole).toString(), "<p>/&lt;a&gt;</p>") << "a name is no markup";

    EXPECT_NE(painted(Running, 50), painted(Running, 150)) << "a bar";
    EXPECT_EQ(painted(Waiting, 50), painted(Waiting, 150)) << "a text";
    EXPECT_NE(painted(Waiting), painted(Done));
    const std::string stem = "/" + std::string(100, 'x');
    EXPECT_NE(painted(Waiting, 0, (stem + ".enc").c_str()), painted(Waiting, 0, (stem + ".dec").c_str()))
        << "the end of a long name tells files apart";
    const auto glyph = [&](EntryState now) {
        queue.end(0, now, {});
        return state.data(Qt::DecorationRole).value<QPixmap>().toImage();
    };
    EXPECT_NE(glyph(Failed), glyph(Done));
}

} // namespace
