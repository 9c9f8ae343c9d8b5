#include "platform/host/temporary_folder.h"

#include <gtest/gtest.h>

#include "platform/host/posix_files.h"

namespace quorrin {
namespace {

TEST(TemporaryFolder, EachIsFreshAndGoesWithAllThatIsInIt) {
    PosixFiles files;
    std::string path;
    {
        const TemporaryFolder one;
        const TemporaryFolder two;
        path = one.path();
        ASSERT_FALSE(path.empty());
        EXPECT_NE(path, two.path());
        EXPECT_TRUE(files.folderExists(path));
        EXPECT_TRUE(files.filesIn(path).empty());
        ASSERT_TRUE(files.createFolder(path + "/deep/er"));
        ASSERT_TRUE(files.writeWhole(path + "/deep/er/file", "x"));
    }
    EXPECT_FALSE(files.folderExists(path));
}

TEST(AbsolutePath, LeavesAnAbsolutePathAndPutsOthersUnderTheCurrentFolder) {
    EXPECT_EQ(absolutePath("/a/b"), "/a/b");
    EXPECT_EQ(absolutePath("/a/b//"), "/a/b");
    EXPECT_EQ(absolutePath("/"), "/");
    const std::string here = absolutePath(".");
    EXPECT_EQ(absolutePath("x/y"), here.substr(0, here.size() - 1) + "x/y");
}

}  // namespace
}  // namespace quorrin
