#include "console/archive_words.h"

#include <gtest/gtest.h>

namespace quorrin {
namespace {

TEST(ArchiveWords, NoFaultIsNoText) {
    EXPECT_EQ(captureFaultText(ArchiveFault::none), "");
    EXPECT_EQ(reviewFaultText({}), "");
    EXPECT_EQ(reviewFaultText({"46346_0.5_1.jpg", PictureFault::none, false}), "");
}

TEST(ArchiveWords, AStoppedCaptureSaysWhy) {
    EXPECT_EQ(captureFaultText(ArchiveFault::noRoot), "Capture stopped: the folder catchdata is missing.");
    EXPECT_EQ(captureFaultText(ArchiveFault::folderNotMade),
              "Capture stopped: no folder can be made for this day. The disk may be full or not writable.");
    EXPECT_EQ(captureFaultText(ArchiveFault::noPicture), "Capture stopped: the camera has given no picture.");
    EXPECT_EQ(captureFaultText(ArchiveFault::notStored),
              "Capture stopped: the picture cannot be stored. The disk may be full or not writable.");
}

TEST(ArchiveWords, APictureThatIsNotShownIsNamedWithTheReason) {
    EXPECT_EQ(reviewFaultText({"a.jpg", PictureFault::empty, false}), "a.jpg: the file is empty.");
    EXPECT_EQ(reviewFaultText({"a.jpg", PictureFault::missing, true}), "a.jpg: the file cannot be read.");
    EXPECT_EQ(reviewFaultText({"a.jpg", PictureFault::none, true}), "a.jpg: the name tells no time.");
}

}  // namespace
}  // namespace quorrin
