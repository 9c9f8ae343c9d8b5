#include "platform/host/posix_files.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

#include "platform/host/file_handle.h"
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

TEST_F(PosixFilesTest, ListsALinkToAFileAndNoneToAFolder) {
    ASSERT_TRUE(files.writeWhole(path("a"), ""));
    ASSERT_TRUE(files.createFolder(path("sub")));
    ASSERT_EQ(::symlink("a", path("to_file").c_str()), 0);
    ASSERT_EQ(::symlink("sub", path("to_folder").c_str()), 0);
    ASSERT_EQ(::symlink("none", path("to_nothing").c_str()), 0);
    EXPECT_EQ(files.filesIn(folder.path()), (std::vector<std::string>{"a", "to_file"}));
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

// Whoever has the file open while it is replaced goes on reading the whole of the old one.
TEST_F(PosixFilesTest, AReaderOfAPassingFileSeesTheOldOneOrTheNewOneAndNoMixture) {
    ASSERT_TRUE(files.writeVolatile(path("x.bmp"), std::string(100'000, 'o')));
    const FileHandle reader(::open(path("x.bmp").c_str(), O_RDONLY | O_CLOEXEC));
    char first[10];
    ASSERT_EQ(::read(reader.get(), first, sizeof first), 10);
    EXPECT_TRUE(files.writeVolatile(path("x.bmp"), std::string(50'000, 'n')));
    std::string rest(200'000, ' ');
    rest.resize(static_cast<std::size_t>(::read(reader.get(), rest.data(), rest.size())));
    EXPECT_EQ(rest, std::string(99'990, 'o'));
    EXPECT_EQ(files.read(path("x.bmp")), std::string(50'000, 'n'));
    EXPECT_EQ(files.filesIn(folder.path()), std::vector<std::string>{"x.bmp"});
}

TEST_F(PosixFilesTest, APassingFileThatCannotBeWrittenIsTold) {
    std::vector<std::string> told;
    files.onWriteFailed = [&](const std::string& name) { told.push_back(name); };
    EXPECT_FALSE(files.writeVolatile(path("no/x.bmp"), "one"));
    EXPECT_EQ(told, std::vector<std::string>{path("no/x.bmp")});
}

TEST_F(PosixFilesTest, PutsBackTheTimesAndThePermissionsOfAFile) {
    ASSERT_TRUE(files.writeWhole(path("a"), "one"));
    const FileStamps old{1'000'000'000'123'456'789, 1'100'000'000'987'654'321, 0640};
    EXPECT_TRUE(files.putBackStamps(path("a"), old));
    EXPECT_EQ(files.stampsOf(path("a")), old);
    EXPECT_EQ(files.read(path("a")), "one");
}

TEST_F(PosixFilesTest, ATimeBefore1970ComesBackToo) {
    ASSERT_TRUE(files.writeWhole(path("a"), "one"));
    const FileStamps old{-1'500'000'000, -1, 0600};
    EXPECT_TRUE(files.putBackStamps(path("a"), old));
    EXPECT_EQ(files.stampsOf(path("a")), old);
}

TEST_F(PosixFilesTest, AFileThatSomebodyElseHoldsForWritingKeepsItsStamps) {
    ASSERT_TRUE(files.writeWhole(path("a"), "one"));
    const FileHandle other(::open(path("a").c_str(), O_WRONLY | O_CLOEXEC));
    ASSERT_EQ(::flock(other.get(), LOCK_SH), 0);
    const auto before = files.stampsOf(path("a"));
    EXPECT_FALSE(files.putBackStamps(path("a"), {1, 2, 0400}));
    EXPECT_EQ(files.stampsOf(path("a")), before);
}

TEST_F(PosixFilesTest, NoStampsAreThereOfWhatIsNoFile) {
    EXPECT_EQ(files.stampsOf(path("none")), std::nullopt);
    EXPECT_EQ(files.stampsOf(folder.path()), std::nullopt);
    EXPECT_FALSE(files.putBackStamps(path("none"), {1, 2, 0600}));
    EXPECT_FALSE(files.fileExists(path("none")));
}

}  // namespace
}  // namespace quorrin
