#include "platform/host/log_file.h"

#include <gtest/gtest.h>

#include "platform/host/posix_files.h"
#include "platform/virtual/virtual_clock.h"
#include "support/temp_folder.h"

namespace quorrin {
namespace {

class LogFileTest : public ::testing::Test {
  protected:
    TempFolder folder;
    PosixFiles files;
    VirtualClock clock{{2026, 11, 20, 9, 5, 7}};
    const std::string path = folder.path() + "/gateway.log";
    LogFile log{clock, path};
};

TEST_F(LogFileTest, AppendsLinesWithDateAndTime) {
    testing::internal::CaptureStderr();
    log.line("started");
    LogFile(clock, path).line("started again");
    const std::string expected = "2026-11-20 09:05:07 started\n2026-11-20 09:05:07 started again\n";
    EXPECT_EQ(testing::internal::GetCapturedStderr(), expected);
    EXPECT_EQ(files.read(path), expected);
}

TEST_F(LogFileTest, BeginsAnewPastAMegabyteAndKeepsTheOneBefore) {
    ASSERT_TRUE(files.writeWhole(path, std::string(1024 * 1024 + 1, 'x')));
    testing::internal::CaptureStderr();
    log.line("new");
    testing::internal::GetCapturedStderr();
    EXPECT_EQ(files.read(path), "2026-11-20 09:05:07 new\n");
    EXPECT_TRUE(files.fileExists(path + ".1"));
}

TEST_F(LogFileTest, SaysItOnStandardErrorWhereTheFileCannotBeWritten) {
    LogFile nowhere(clock, folder.path() + "/none/gateway.log");
    testing::internal::CaptureStderr();
    nowhere.line("still said");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "2026-11-20 09:05:07 still said\n");
}

}  // namespace
}  // namespace quorrin
