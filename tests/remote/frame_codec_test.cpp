#include "remote/frame_codec.h"

#include <gmock/gmock.h>

#include <random>

#include "support/plain_receiver.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Payloads = std::vector<std::string>;

struct Receiver {
    explicit Receiver(FrameRule rule, std::size_t limit = 4095) : buffer(limit, rule) {}
    Receiver& read(std::string_view bytes) {
        buffer.take(bytes, [this](const std::string& payload) { payloads.push_back(payload); });
        return *this;
    }
    FrameBuffer buffer;
    Payloads payloads;
};

Payloads commandReads(const std::vector<std::string>& reads) {
    Receiver receiver(FrameRule::equalLength);
    for (const std::string& bytes : reads) receiver.read(bytes);
    return receiver.payloads;
}
Payloads videoReads(const std::vector<std::string>& reads) {
    Receiver receiver(FrameRule::everyFrame, 1024);
    for (const std::string& bytes : reads) receiver.read(bytes);
    return receiver.payloads;
}

// Every frame below, as bytes.
const std::string kMode("\x5E\x02Mode\x5E\x0D", 8);
const std::string kPing("\x5E\x02PING\x5E\x0D", 8);

TEST(FrameCodec, WritesTheMarksAroundThePayload) {
    EXPECT_EQ(frameOf("Mode"), kMode);
    EXPECT_EQ(frameOf("PING"), kPing);
}

TEST(FrameCodec, DeliversAFrameOfFourCharacters) {
    EXPECT_THAT(commandReads({kMode}), ElementsAre("Mode"));
    EXPECT_THAT(videoReads({kMode}), ElementsAre("Mode"));
}

TEST(FrameCodec, DropsAPayloadOfThreeCharactersAndConsumesItsEndMark) {
    Receiver receiver(FrameRule::equalLength);
    receiver.read(frameOf("Mod"));
    EXPECT_THAT(receiver.payloads, IsEmpty());
    EXPECT_EQ(receiver.buffer.waiting(), "");
    EXPECT_THAT(videoReads({frameOf("")}), IsEmpty());
}

TEST(FrameCodec, DropsGarbageAheadOfAStartMarkWithItsFrame) {
    EXPECT_THAT(commandReads({"rubbish" + kMode}), ElementsAre("Mode"));
    EXPECT_THAT(commandReads({"^^^^^\r" + kMode, kMode}), ElementsAre("Mode", "Mode"));
}

TEST(FrameCodec, DeliversNothingWithoutAStartMark) {
    EXPECT_THAT(commandReads({"rubbish^\r", kMode}), ElementsAre("Mode"));
}

TEST(FrameCodec, TakesTheFirstOfSeveralStartMarks) {
    EXPECT_THAT(commandReads({"^\x02"
                              "ab^\x02"
                              "Mode^\r"}),
                ElementsAre("ab^\x02"
                            "Mode"));
}

TEST(FrameCodec, LetsAPayloadHoldACaretThatNoCarriageReturnFollows) {
    EXPECT_THAT(commandReads({frameOf("a^b\rc^^")}), ElementsAre("a^b\rc^^"));
}

TEST(FrameCodec, AStartMarkMayNotReachIntoTheEndMark) {
    EXPECT_THAT(commandReads({"abcdef^\r\x02"}), IsEmpty());
}

TEST(FrameCodec, HandlesTwoFramesOfOneLengthInOneReadAtOnce) {
    EXPECT_THAT(commandReads({kPing + kPing}), ElementsAre("PING", "PING"));
    EXPECT_THAT(commandReads({kPing + kPing + kPing}), ElementsAre("PING", "PING", "PING"));
}

TEST(FrameCodec, LeavesAFrameOfAnotherLengthForTheNextRead) {
    const std::string longer(20, 'x');
    Receiver receiver(FrameRule::equalLength);
    receiver.read(kPing + frameOf(longer));
    EXPECT_THAT(receiver.payloads, ElementsAre("PING"));
    EXPECT_EQ(receiver.buffer.waiting(), frameOf(longer));
    receiver.read(kPing);
    EXPECT_THAT(receiver.payloads, ElementsAre("PING", longer));
    receiver.read(kPing);
    EXPECT_THAT(receiver.payloads, ElementsAre("PING", longer, "PING", "PING"));
}

TEST(FrameCodec, LeavesAShorterFrameForTheNextReadToo) {
    const std::string longer(20, 'x');
    EXPECT_THAT(commandReads({frameOf(longer) + kPing}), ElementsAre(longer));
    EXPECT_THAT(commandReads({frameOf(longer) + kPing, ""}), ElementsAre(longer, "PING"));
}

TEST(FrameCodec, GoesOnOnTheVideoChannelAsLongAsThereAreEndMarks) {
    EXPECT_THAT(videoReads({frameOf("OKOK") + frameOf("0123456789") + frameOf("OKFN")}),
                ElementsAre("OKOK", "0123456789", "OKFN"));
    EXPECT_THAT(videoReads({frameOf("abc") + frameOf("OKFN")}), ElementsAre("OKFN"));
}

TEST(FrameCodec, StopsWhereFewerThanSixCharactersRemain) {
    Receiver receiver(FrameRule::everyFrame);
    receiver.read(kMode + "abc^\r");
    EXPECT_EQ(receiver.buffer.waiting(), "abc^\r");
    receiver.read("");
    EXPECT_EQ(receiver.buffer.waiting(), "");
    EXPECT_THAT(receiver.payloads, ElementsAre("Mode"));
}

TEST(FrameCodec, EmptiesABufferThatHoldsMoreThanItsLimitAheadOfTheNextRead) {
    for (const std::size_t limit : {std::size_t{4095}, std::size_t{1024}}) {
        Receiver full(FrameRule::equalLength, limit);
        full.read("^\x02" + std::string(limit - 2, 'x'));
        full.read("y^\r");
        EXPECT_THAT(full.payloads, ElementsAre(std::string(limit - 2, 'x') + "y"));

        Receiver over(FrameRule::equalLength, limit);
        over.read("^\x02" + std::string(limit - 1, 'x'));
        over.read("y^\r");
        EXPECT_THAT(over.payloads, IsEmpty());
        over.read(kMode);
        EXPECT_THAT(over.payloads, ElementsAre("Mode"));
    }
}

TEST(FrameCodec, LetsOneReadBeLongerThanTheLimit) {
    const std::string payload(9000, 'x');
    EXPECT_THAT(commandReads({frameOf(payload)}), ElementsAre(payload));
}

TEST(FrameCodec, MixesTheBytesOfClientsThatSendAtOnce) {
    EXPECT_THAT(commandReads({"^\x02Mo", "^\x02PING^\r", "de^\r"}), ElementsAre("Mo^\x02PING"));
}

TEST(FrameCodec, HandlesAReadFullOfEndMarksInNoTime) {
    std::string marks;
    for (int i = 0; i < 500'000; ++i) marks += "^\r";
    EXPECT_THAT(commandReads({marks + kMode, kMode}), ElementsAre("Mode", "Mode"));
}

std::string randomStream(std::minstd_rand& random) {
    static const std::vector<std::string> pieces = {kMode,
                                                    kPing,
                                                    "^",
                                                    "\r",
                                                    "^\r",
                                                    "\x02",
                                                    "^\x02",
                                                    "x",
                                                    "abc",
                                                    frameOf("12345678901"),
                                                    frameOf("a^b\rc"),
                                                    std::string("\0\xFF", 2),
                                                    std::string(40, 'y')};
    std::string stream;
    for (auto count = random() % 30; count > 0; --count) stream += pieces[random() % pieces.size()];
    return stream;
}

void expectTheSame(FrameRule rule, std::size_t limit, const std::vector<std::string>& reads) {
    Receiver receiver(rule, limit);
    PlainReceiver plain(rule, limit);
    Payloads expected;
    for (const std::string& bytes : reads) {
        receiver.read(bytes);
        for (const std::string& payload : plain.read(bytes)) expected.push_back(payload);
    }
    ASSERT_EQ(receiver.payloads, expected);
}

std::vector<std::string> randomPieces(const std::string& stream, std::minstd_rand& random) {
    std::vector<std::string> pieces;
    for (std::size_t at = 0; at < stream.size();) {
        const std::size_t length = 1 + random() % 20;
        pieces.push_back(stream.substr(at, length));
        at += length;
    }
    return pieces;
}

TEST(FrameCodec, AgreesWithThePlainRulesWholeByteByByteAndInRandomPieces) {
    std::minstd_rand random(7);
    for (int i = 0; i < 3000; ++i) {
        const std::string stream = randomStream(random);
        std::vector<std::string> bytes;
        for (const char c : stream) bytes.emplace_back(1, c);
        for (const FrameRule rule : {FrameRule::everyFrame, FrameRule::equalLength}) {
            const std::size_t limit = 10 + random() % 100;
            expectTheSame(rule, limit, {stream});
            expectTheSame(rule, limit, bytes);
            expectTheSame(rule, limit, randomPieces(stream, random));
        }
    }
}

}  // namespace
}  // namespace quorrin
