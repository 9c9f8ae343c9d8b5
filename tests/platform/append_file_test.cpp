// What every growing file must do; run on the real ones and on those in memory.
#include "platform/append_file.h"

#include <gtest/gtest.h>

#include "platform/host/posix_append_file.h"
#include "platform/host/posix_files.h"
#include "platform/host/temporary_folder.h"
#include "platform/virtual/memory_append_file.h"

namespace quorrin {
namespace {

struct RealGrowingFiles {
    PosixFiles files;
    TemporaryFolder folder;
    CreateAppendFile create = createPosixAppendFile;
    std::string place() const { return folder.path(); }
};

struct GrowingFilesInMemory {
    GrowingFilesInMemory() { files.createFolder("/place"); }
    MemoryFiles files;
    CreateAppendFile create = createInMemory(files);
    std::string place() const { return "/place"; }
};

template <typename World>
class AppendFileContract : public testing::Test {
  protected:
    World world;
};

using Worlds = testing::Types<RealGrowingFiles, GrowingFilesInMemory>;
TYPED_TEST_SUITE(AppendFileContract, Worlds);

TYPED_TEST(AppendFileContract, GrowsByWhatIsAppendedAndCanBeReadMeanwhile) {
    auto& place = this->world;
    const auto file = place.create(place.place() + "/a");
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(place.files.read(place.place() + "/a"), "");
    EXPECT_TRUE(file->append("one\n"));
    EXPECT_EQ(place.files.read(place.place() + "/a"), "one\n");
    EXPECT_TRUE(file->append(""));
    EXPECT_TRUE(file->append("two\n"));
    EXPECT_EQ(place.files.read(place.place() + "/a"), "one\ntwo\n");
}

TYPED_TEST(AppendFileContract, ANewOneTakesThePlaceOfTheOld) {
    auto& place = this->world;
    ASSERT_TRUE(place.create(place.place() + "/a")->append("old"));
    EXPECT_TRUE(place.create(place.place() + "/a")->append("n"));
    EXPECT_EQ(place.files.read(place.place() + "/a"), "n");
}

TYPED_TEST(AppendFileContract, CannotBeMadeInAFolderThatIsNotThere) {
    EXPECT_EQ(this->world.create(this->world.place() + "/none/a"), nullptr);
}

}  // namespace
}  // namespace quorrin
