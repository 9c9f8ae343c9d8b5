#include "base/general_functions.h"

#include <gtest/gtest.h>

#include "platform/virtual/memory_files.h"

namespace quorrin {
namespace {

using std::string;

constexpr const char* kFile = "/windows/gateway_mot.ini";

class ProfileFile : public ::testing::Test {
  protected:
    ProfileFile() { files.createFolder("/windows"); }
    string content() { return files.read(kFile).value_or("<none>"); }
    MemoryFiles files;
};

TEST_F(ProfileFile, GivesAnEmptyTextForWhatIsMissing) {
    EXPECT_EQ(ReadIni("WiFi", "WiFiIP", kFile, files), "");
    files.put(kFile, "[WiFi]\nWiFiPort=1\n");
    EXPECT_EQ(ReadIni("WiFi", "WiFiIP", kFile, files), "");
    EXPECT_EQ(ReadIni("servo1", "init", kFile, files), "");
}

TEST_F(ProfileFile, ReadsAGatewaysFile) {
    files.put(kFile, "[WiFi]\r\nWiFiIP=127.127.0.1\r\nWiFiPort=10001\r\nBTAddress=0000000000\r\n");
    EXPECT_EQ(ReadIni("WiFi", "WiFiIP", kFile, files), "127.127.0.1");
    EXPECT_EQ(ReadIni("WiFi", "WiFiPort", kFile, files), "10001");
    EXPECT_EQ(ReadIni("WiFi", "BTAddress", kFile, files), "0000000000");
}

TEST_F(ProfileFile, CutsAValueAt128Characters) {
    files.put(kFile, "[a]\nx=" + string(127, 'v') + "yz\n");
    EXPECT_EQ(ReadIni("a", "x", kFile, files), string(127, 'v') + "y");
}

TEST_F(ProfileFile, CountsACharacterOfSeveralBytesOnce) {
    string wide;
    for (int i = 0; i < 130; ++i) wide += "\xC3\xA4";
    files.put(kFile, "[a]\nx=" + wide + "\n");
    EXPECT_EQ(ReadIni("a", "x", kFile, files), wide.substr(0, 256));
}

TEST_F(ProfileFile, CutsAValueAtItsFirstNulAndThenTrims) {
    files.put(kFile, string("[a]\nx=\" 12 \0 34\"\n", 17));
    EXPECT_EQ(ReadIni("a", "x", kFile, files), "12");
}

TEST_F(ProfileFile, TrimsAfterTheCut) {
    files.put(kFile, "[a]\nx=1" + string(127, ' ') + "2\n");
    EXPECT_EQ(ReadIni("a", "x", kFile, files), "1");
    files.put(kFile, "[a]\nx='   '\n");
    EXPECT_EQ(ReadIni("a", "x", kFile, files), "");
}

TEST_F(ProfileFile, CreatesTheFileOnTheFirstWrite) {
    EXPECT_TRUE(WriteIni("WiFi", "WiFiIP", "127.127.0.1", kFile, files));
    EXPECT_TRUE(WriteIni("WiFi", "WiFiPort", "10001", kFile, files));
    EXPECT_EQ(content(), "[WiFi]\nWiFiIP=127.127.0.1\nWiFiPort=10001\n");
}

TEST_F(ProfileFile, HoldsNoNulByte) {
    EXPECT_TRUE(WriteIni("a", "x", string("12\0junk", 7), kFile, files));
    EXPECT_EQ(content(), "[a]\nx=12\n");
}

TEST_F(ProfileFile, IsWrittenAsAWholeOrNotAtAll) {
    files.put(kFile, "[a]\nx=1\n");
    files.setDiskFull(true);
    EXPECT_FALSE(WriteIni("a", "x", "2", kFile, files));
    EXPECT_EQ(content(), "[a]\nx=1\n");
}

TEST_F(ProfileFile, ReportsAFolderThatIsNotThere) {
    EXPECT_FALSE(WriteIni("a", "x", "2", "/nowhere/file.ini", files));
}

TEST_F(ProfileFile, RefusesNamesAndValuesThatWouldBreakItsLines) {
    files.put(kFile, "[a]\nx=1\n");
    EXPECT_FALSE(WriteIni("a", "x", "2\n[b]", kFile, files));
    EXPECT_FALSE(WriteIni("a\r", "x", "2", kFile, files));
    EXPECT_FALSE(WriteIni("a", "x\ny", "2", kFile, files));
    EXPECT_FALSE(WriteIni("", "x", "2", kFile, files));
    EXPECT_FALSE(WriteIni("a", "", "2", kFile, files));
    EXPECT_EQ(content(), "[a]\nx=1\n");
}

// A file that is there and cannot be read must not be replaced by one that has only the new key.
TEST_F(ProfileFile, IsLeftAloneWhenItCannotBeRead) {
    class Unreadable : public MemoryFiles {
      public:
        std::optional<string> read(const string&) override { return std::nullopt; }
    } unreadable;
    unreadable.put(kFile, "[a]\nx=1\n");
    EXPECT_FALSE(WriteIni("a", "x", "2", kFile, unreadable));
    EXPECT_EQ(unreadable.MemoryFiles::read(kFile), "[a]\nx=1\n");
}

}  // namespace
}  // namespace quorrin
