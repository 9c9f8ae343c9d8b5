// The conversations of docs/remote-protocol.md and of transcripts/, held with a station in virtual time:
// with each client's bytes whole, byte by byte, and in random pieces.
#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>

#include <algorithm>
#include <random>
#include <sstream>
#include <stdexcept>

#include "remote/transcript_player.h"

namespace quorrin {
namespace {

const std::string kSource = QUORRIN_SOURCE_DIR;
constexpr int kRandomRounds = 5;

std::vector<std::string> whole(const std::string& bytes) {
    return {bytes};
}

std::vector<std::string> byteByByte(const std::string& bytes) {
    std::vector<std::string> pieces;
    for (const char byte : bytes) pieces.emplace_back(1, byte);
    return pieces;
}

Cut randomly(unsigned seed) {
    return [random = std::minstd_rand(seed)](const std::string& bytes) mutable {
        std::vector<std::string> pieces;
        for (std::size_t at = 0; at < bytes.size();) {
            pieces.push_back(bytes.substr(at, 1 + random() % 9));
            at += pieces.back().size();
        }
        return pieces;
    };
}

struct RemoteTranscripts : testing::TestWithParam<const char*> {
    std::vector<Transcript> transcripts = readTranscripts(kSource + "/" + GetParam());
    void playAll(const std::function<Cut(unsigned)>& cut, unsigned rounds) {
        ASSERT_FALSE(transcripts.empty());
        for (const Transcript& transcript : transcripts) {
            for (unsigned round = 1; round <= rounds; ++round) {
                SCOPED_TRACE("round " + std::to_string(round));
                TranscriptPlayer(transcript, cut(round)).play();
            }
        }
    }
};

TEST_P(RemoteTranscripts, HoldWithEachLinesBytesAsOneRead) {
    playAll([](unsigned) { return whole; }, 1);
}

TEST_P(RemoteTranscripts, HoldByteByByte) {
    playAll([](unsigned) { return byteByByte; }, 1);
}

TEST_P(RemoteTranscripts, HoldInRandomPieces) {
    playAll(randomly, kRandomRounds);
}

INSTANTIATE_TEST_SUITE_P(Of, RemoteTranscripts,
                         testing::Values("docs/remote-protocol.md",
                                         "tests/remote/transcripts/connections.txt",
                                         "tests/remote/transcripts/commands.txt",
                                         "tests/remote/transcripts/reports.txt"),
                         [](const auto& test) {
                             const std::string path = test.param;
                             const std::size_t slash = path.rfind('/') + 1;
                             std::string name = path.substr(slash, path.rfind('.') - slash);
                             name.erase(std::remove(name.begin(), name.end(), '-'), name.end());
                             return name;
                         });

TEST(TranscriptText, TakesPairsOfHexDigitsAndQuotedTextForBytes) {
    EXPECT_EQ(transcriptBytes("5E 02 \"PING\" 5E 0D"), frameOf("PING"));
    EXPECT_EQ(transcriptBytes("\"ab\"*3 00 FF"), std::string("ababab\0\xFF", 8));
}

TEST(TranscriptText, RefusesWhatItDoesNotUnderstand) {
    EXPECT_THROW(transcriptBytes("\"open"), std::runtime_error);
    EXPECT_THROW(transcriptBytes("5"), std::runtime_error);
    EXPECT_THROW(readTranscripts(kSource + "/docs/nowhere.md"), std::runtime_error);
}

// The player can fail: what the station does not do is found out.
struct PlantedTranscript : testing::Test {
    static void play(const std::string& lastLine) {
        std::istringstream text(
            "# planted\nC 7060 connects\nC 7070 connects\n"
            "C 7060: 5E 02 \"5000,10000,10000,2000,2000,2650,1,5\" 5E 0D\n" +
            lastLine + "\n");
        const auto planted = transcriptsIn(text);
        TranscriptPlayer(planted.at(0), whole).play();
    }
};

TEST_F(PlantedTranscript, AnotherByteOfAReportIsFound) {
    EXPECT_NONFATAL_FAILURE(play("S 7070: \"0,0,0,4,JOY,1\""), "0,0,0,4,JOY,1");
}

TEST_F(PlantedTranscript, AnotherValueOfTheStationIsFound) {
    EXPECT_NONFATAL_FAILURE(play("station commandCount 6"), "6");
}

TEST_F(PlantedTranscript, AnUnwrittenReportIsFound) {
    EXPECT_NONFATAL_FAILURE(play("wait 500"), "unwritten on port 7070");
}

}  // namespace
}  // namespace quorrin
