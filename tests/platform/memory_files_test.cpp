#include "platform/virtual/memory_files.h"

#include <gmock/gmock.h>

namespace quorrin {
namespace {

using testing::ElementsAre;

TEST(MemoryFiles, AWrittenFileReadsBack) {
    MemoryFiles files;
    ASSERT_TRUE(files.createFolder("/app/windows"));
    EXPECT_TRUE(files.writeWhole("/app/windows/a.ini", "[x]\n"));
    EXPECT_TRUE(files.fileExists("/app/windows/a.ini"));
    EXPECT_EQ(files.read("/app/windows/a.ini"), "[x]\n");
    EXPECT_EQ(files.read("/app/windows/b.ini"), std::nullopt);
}

TEST(MemoryFiles, WritingIntoAMissingFolderFails) {
    MemoryFiles files;
    EXPECT_FALSE(files.writeWhole("/nowhere/a", "x"));
    EXPECT_FALSE(files.fileExists("/nowhere/a"));
}

TEST(MemoryFiles, CreatingAFolderCreatesThoseAboveIt) {
    MemoryFiles files;
    files.createFolder("/a/b/c/");
    EXPECT_TRUE(files.folderExists("/a"));
    EXPECT_TRUE(files.folderExists("/a/b"));
    EXPECT_TRUE(files.folderExists("/a/b/c"));
    EXPECT_FALSE(files.folderExists("/a/b/c/d"));
    EXPECT_FALSE(files.fileExists("/a/b"));
}

TEST(MemoryFiles, AFullDiskRefusesEveryWriteAndKeepsTheOldContent) {
    MemoryFiles files;
    files.put("/a/one", "old");
    files.setDiskFull(true);
    EXPECT_FALSE(files.writeWhole("/a/one", "new"));
    EXPECT_FALSE(files.copy("/a/one", "/a/two"));
    EXPECT_FALSE(files.createFolder("/b"));
    EXPECT_TRUE(files.createFolder("/a"));
    EXPECT_EQ(files.read("/a/one"), "old");
    files.setDiskFull(false);
    EXPECT_TRUE(files.writeWhole("/a/one", "new"));
}

TEST(MemoryFiles, AReadOnlyFolderKeepsWhatItHas) {
    MemoryFiles files;
    files.put("/a/one", "old");
    files.setReadOnly("/a");
    EXPECT_FALSE(files.writeWhole("/a/one", "new"));
    EXPECT_FALSE(files.writeVolatile("/a/two", "new"));
    EXPECT_FALSE(files.copy("/a/one", "/a/two"));
    EXPECT_FALSE(files.createFolder("/a/deeper"));
    EXPECT_FALSE(files.remove("/a/one"));
    EXPECT_EQ(files.read("/a/one"), "old");
    EXPECT_TRUE(files.createFolder("/a"));
    EXPECT_TRUE(files.createFolder("/b"));
}

TEST(MemoryFiles, AppendingNeedsAFileAndRoom) {
    MemoryFiles files;
    EXPECT_FALSE(files.append("/a/one", "x"));
    files.put("/a/one", "1");
    EXPECT_TRUE(files.append("/a/one", "2"));
    files.setDiskFull(true);
    EXPECT_FALSE(files.append("/a/one", "3"));
    EXPECT_EQ(files.read("/a/one"), "12");
}

TEST(MemoryFiles, CopiesRemovesAndListsByFolder) {
    MemoryFiles files;
    files.put("/a/two", "2");
    files.put("/a/one", "1");
    files.put("/a/deeper/three", "3");
    EXPECT_TRUE(files.copy("/a/two", "/a/four"));
    EXPECT_FALSE(files.copy("/a/none", "/a/five"));
    EXPECT_THAT(files.filesIn("/a"), ElementsAre("four", "one", "two"));
    EXPECT_TRUE(files.remove("/a/two"));
    EXPECT_FALSE(files.remove("/a/two"));
    EXPECT_THAT(files.filesIn("/a/"), ElementsAre("four", "one"));
    EXPECT_TRUE(files.filesIn("/none").empty());
}

TEST(MemoryFiles, APassingFileIsAFileLikeAnyOther) {
    MemoryFiles files;
    EXPECT_FALSE(files.writeVolatile("/nowhere/a", "x"));
    files.put("/a/one", "old");
    EXPECT_TRUE(files.writeVolatile("/a/one", "new"));
    EXPECT_EQ(files.read("/a/one"), "new");
    files.setDiskFull(true);
    EXPECT_FALSE(files.writeVolatile("/a/one", "newer"));
    EXPECT_EQ(files.read("/a/one"), "new");
}

TEST(MemoryFiles, StampsStayUntilTheFileIsWrittenAndItsModeUntilItIsRemoved) {
    MemoryFiles files;
    EXPECT_EQ(files.stampsOf("/a/one"), std::nullopt);
    EXPECT_FALSE(files.putBackStamps("/a/one", {1, 2, 0600}));
    files.put("/a/one", "1");
    EXPECT_EQ(files.stampsOf("/a/one"), MemoryFiles::kFreshStamps);
    EXPECT_TRUE(files.putBackStamps("/a/one", {1, 2, 0600}));
    EXPECT_EQ(files.stampsOf("/a/one"), (FileStamps{1, 2, 0600}));
    files.writeWhole("/a/one", "2");
    EXPECT_EQ(files.stampsOf("/a/one"), (FileStamps{0, 0, 0600}));
    files.remove("/a/one");
    files.put("/a/one", "3");
    EXPECT_EQ(files.stampsOf("/a/one"), MemoryFiles::kFreshStamps);
}

}  // namespace
}  // namespace quorrin
