#include "platform/host/posix_files.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

#include "support/temp_folder.h"

namespace quorrin {
namespace {

class PosixFilesTest : public ::testing::Test {
  protected:
    TempFolder folder;
    PosixFiles files;
    std::string path(const std::string& name) const { return folder.path() + "/" + name; }
};

TEST_F(PosixFilesTest, ReadsBackWhatItWrote) {
    const std::string content("a\0b\n", 4);
    EXPECT_TRUE(files.writeWhole(path("x.ini"), content));
    EXPECT_EQ(files.read(path("x.ini")), content);
    EXPECT_TRUE(files.fileExists(path("x.ini")));
}

TEST_F(PosixFilesTest, LeavesNoTemporaryFileBehind) {
    EXPECT_TRUE(files.writeWhole(path("x.ini"), "one"));
    EXPECT_TRUE(files.writeWhole(path("x.ini"), "two"));
    EXPECT_EQ(files.filesIn(folder.path()), std::vector<std::string>{"x.ini"});
}

TEST_F(PosixFilesTest, CannotWriteIntoAFolderThatDoesNotExist) {
    std::vector<std::string> told;
    files.onWriteFailed = [&](const std::string& name) { told.push_back(name); };
    EXPECT_FALSE(files.writeWhole(path("no/x.ini"), "one"));
    EXPECT_EQ(told, std::vector<std::string>{path("no/x.ini")});
    EXPECT_FALSE(files.folderExists(path("no")));
}

TEST_F(PosixFilesTest, AMissingFileReadsAsNothing) {
    EXPECT_FALSE(files.read(path("none")));
    EXPECT_FALSE(files.fileExists(path("none")));
    EXPECT_FALSE(files.remove(path("none")));
}

TEST_F(PosixFilesTest, CreatesAFolderWithThoseAboveItAndTwiceIsFine) {
    EXPECT_TRUE(files.createFolder(path("a/b/c")));
    EXPECT_TRUE(files.createFolder(path("a/b/c")));
    EXPECT_TRUE(files.folderExists(path("a/b")));
    EXPECT_FALSE(files.fileExists(path("a/b")));
}

TEST_F(PosixFilesTest, CannotCreateAFolderWhereAFileLies) {
    ASSERT_TRUE(files.writeWhole(path("a"), ""));
    EXPECT_FALSE(files.createFolder(path("a/b")));
}

TEST_F(PosixFilesTest, ListsPlainFilesOnlyAndSorted) {
    ASSERT_TRUE(files.createFolder(path("sub")));
    ASSERT_TRUE(files.writeWhole(path("b"), ""));
    ASSERT_TRUE(files.writeWhole(path("a"), ""));
    EXPECT_EQ(files.filesIn(folder.path()), (std::vector<std::string>{"a", "b"}));
    EXPECT_TRUE(files.filesIn(path("none")).empty());
}

TEST_F(PosixFilesTest, CopiesAndRemoves) {
    ASSERT_TRUE(files.writeWhole(path("a"), "content"));
    EXPECT_TRUE(files.copy(path("a"), path("b")));
    EXPECT_EQ(files.read(path("b")), "content");
    EXPECT_FALSE(files.copy(path("none"), path("c")));
    EXPECT_TRUE(files.remove(path("a")));
    EXPECT_FALSE(files.fileExists(path("a")));
}

TEST_F(PosixFilesTest, WritesThroughALinkAndKeepsThePermissions) {
    ASSERT_TRUE(files.writeWhole(path("real"), "old"));
    ASSERT_EQ(::chmod(path("real").c_str(), 0640), 0);
    ASSERT_EQ(::symlink("real", path("link").c_str()), 0);
    EXPECT_TRUE(files.writeWhole(path("link"), "new"));
    EXPECT_EQ(files.read(path("real")), "new");
    struct stat status {};
    ASSERT_EQ(::lstat(path("real").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0640U);
    ASSERT_EQ(::lstat(path("link").c_str(), &status), 0);
    EXPECT_TRUE(S_ISLNK(status.st_mode));
}

// The limit on a file's size cuts the write short in its middle, as a full disk does.
TEST_F(PosixFilesTest, AWriteThatIsCutShortLeavesTheOldFileAndNothingElse) {
    ASSERT_TRUE(files.writeWhole(path("x.ini"), "old"));
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{4096, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const bool written = files.writeWhole(path("x.ini"), std::string(100'000, 'n'));
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_FALSE(written);
    EXPECT_EQ(files.read(path("x.ini")), "old");
    EXPECT_EQ(files.filesIn(folder.path()), std::vector<std::string>{"x.ini"});
}

}  // namespace
}  // namespace quorrin
