// A client's words on the wire, and what the station's own framing makes of them.
#include "client/channel_frame.h"

#include <gmock/gmock.h>

#include "client/drive_fields.h"
#include "remote/frame_codec.h"

namespace quorrin {
namespace {

using testing::ElementsAre;

std::vector<std::string> handledInOneRead(const std::string& bytes) {
    FrameBuffer buffer(4095, FrameRule::equalLength);
    std::vector<std::string> payloads;
    buffer.take(bytes, [&](const std::string& payload) { payloads.push_back(payload); });
    return payloads;
}

TEST(ChannelFrame, HasItsMarksAroundThePayload) {
    EXPECT_EQ(channelFrame("Mode"), "^\x02Mode^\r");
}

TEST(ChannelFrame, ACommandIsFilledUpInFrontToOneLength) {
    EXPECT_EQ(commandUnit("PING"), std::string(56, ' ') + "^\x02PING^\r");
    EXPECT_EQ(commandUnit(driveText({}, 17)).size(), kCommandUnit);
}

TEST(ChannelFrame, TheLongestDriveCommandFitsTheLength) {
    const DriveFields longest{-32768, -32768, -32768, -32768, -32768, -32768, -32768};
    EXPECT_EQ(commandUnit(driveText(longest, 32767)).size(), kCommandUnit);
}

TEST(ChannelFrame, BareFramesOfUnequalLengthInOneReadLeaveTheSecondWaiting) {
    EXPECT_THAT(handledInOneRead(channelFrame("5000,0,10000,2000,2000,3400,1,9") + channelFrame("Clos")),
                ElementsAre("5000,0,10000,2000,2000,3400,1,9"));
}

TEST(ChannelFrame, CommandsInOneReadAreAllHandledWhateverTheirLength) {
    EXPECT_THAT(handledInOneRead(commandUnit("PING") + commandUnit("5000,0,10000,2000,2000,3400,1,9") +
                                 commandUnit("5000,10000,10000,2000,2000,3400,1,10") + commandUnit("Clos")),
                ElementsAre("PING", "5000,0,10000,2000,2000,3400,1,9", "5000,10000,10000,2000,2000,3400,1,10",
                            "Clos"));
}

TEST(ChannelFrame, APayloadTooLongForTheLengthGoesAsItIs) {
    const std::string longOne(100, 'x');
    EXPECT_EQ(commandUnit(longOne), channelFrame(longOne));
}

}  // namespace
}  // namespace quorrin
