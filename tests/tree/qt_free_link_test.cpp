// The station's rooms link into one library that asks for nothing of Qt, and a whole station runs without it.
#include <gmock/gmock.h>

#include "tree/command.h"
#include "tree/source_text.h"

namespace quorrin::tree {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

// In what "nm -C" tells: undefined symbols that Qt would have to supply.
std::vector<std::string> wantsOfQt(const std::string& symbols) {
    return matchesOf(symbols, R"(\bU .*\b(Q[A-Z][A-Za-z]*::|Q[A-Z][A-Za-z]*\(|q_|qt_|qVersion|qRegister))");
}

// In what "ldd" tells: Qt's libraries.
std::vector<std::string> qtLibraries(const std::string& libraries) {
    return matchesOf(libraries, "libQt");
}

TEST(QtFreeLink, APlantedSymbolOrLibraryIsFound) {
    EXPECT_THAT(wantsOfQt("                 U QTimer::start(int)\n"), SizeIs(1));
    EXPECT_THAT(wantsOfQt("                 U QString::QString(char const*)\n"), SizeIs(1));
    EXPECT_THAT(wantsOfQt("                 U quorrin::QuorrinSDK::~QuorrinSDK()\n"), IsEmpty());
    EXPECT_THAT(qtLibraries("libQt6Core.so.6 => /usr/lib/libQt6Core.so.6\nlibc.so.6\n"), SizeIs(1));
}

TEST(QtFreeLink, TheStationsLibraryWantsNothingOfQt) {
    const Outcome symbols = runCommand("nm -C -u '" QUORRIN_STATION_LIBRARY "'");
    ASSERT_EQ(symbols.status, 0) << symbols.output;
    EXPECT_THAT(symbols.output, HasSubstr("quorrin::")) << "nothing was looked at";
    EXPECT_THAT(wantsOfQt(symbols.output), IsEmpty());
}

TEST(QtFreeLink, AWholeStationRunsWithoutQtInTheReplayProgram) {
    const Outcome libraries = runCommand("ldd '" QUORRIN_BIN_DIR "/quorrin-replay'");
    ASSERT_EQ(libraries.status, 0) << libraries.output;
    EXPECT_THAT(libraries.output, HasSubstr("libstdc++"));
    EXPECT_THAT(qtLibraries(libraries.output), IsEmpty());
}

}  // namespace
}  // namespace quorrin::tree
