#include "session/first_start.h"

#include <gmock/gmock.h>

#include "platform/virtual/memory_files.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kNames[] = {"office.bmp", "office_s.bmp", "happy8k.wav", "quorrin128.bmp",
                                  "Quorrinsdk.ini"};

class FirstStartTest : public testing::Test {
  protected:
    FirstStartTest() {
        for (const std::string name : kNames) files.put("/share/" + name, "shipped " + name);
        files.createFolder("/app");
    }
    MemoryFiles files;
};

TEST_F(FirstStartTest, CopiesTheSiteFilesAndMakesTheArchive) {
    const FirstStart done = fillApplicationFolder(files, "/app", "/share");
    for (const std::string name : kNames) EXPECT_EQ(files.read("/app/" + name), "shipped " + name);
    EXPECT_TRUE(files.folderExists("/app/catchdata"));
    EXPECT_EQ(done.copied.size(), 5U);
    EXPECT_THAT(done.complaints("/app", "/share"), IsEmpty());
}

TEST_F(FirstStartTest, NeverOverwritesWhatTheSiteHas) {
    files.put("/app/office.bmp", "the site's own plan");
    const FirstStart done = fillApplicationFolder(files, "/app", "/share");
    EXPECT_EQ(files.read("/app/office.bmp"), "the site's own plan");
    EXPECT_EQ(done.copied.size(), 4U);
}

TEST_F(FirstStartTest, ASecondStartCopiesNothing) {
    fillApplicationFolder(files, "/app", "/share");
    EXPECT_THAT(fillApplicationFolder(files, "/app", "/share").copied, IsEmpty());
}

TEST_F(FirstStartTest, AMissingSiteFileIsNamedAndTheOthersAreCopied) {
    files.remove("/share/office_s.bmp");
    const FirstStart done = fillApplicationFolder(files, "/app", "/share");
    EXPECT_THAT(done.missing, ElementsAre("office_s.bmp"));
    EXPECT_EQ(done.copied.size(), 4U);
    EXPECT_THAT(done.complaints("/app", "/share"),
                ElementsAre("site file office_s.bmp is neither in /app nor in /share"));
}

TEST_F(FirstStartTest, AFullDiskIsNamedFileByFile) {
    files.setDiskFull(true);
    const FirstStart done = fillApplicationFolder(files, "/app", "/share");
    EXPECT_EQ(done.unwritable.size(), 6U);
    EXPECT_THAT(done.complaints("/app", "/share").back(), HasSubstr("catchdata cannot be written into /app"));
}

}  // namespace
}  // namespace quorrin
