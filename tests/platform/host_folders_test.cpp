#include "platform/host/host_folders.h"

#include <gtest/gtest.h>

#include <map>

#include "platform/host/posix_files.h"
#include "support/temp_folder.h"

namespace quorrin {
namespace {

HostFolders with(const std::map<std::string, std::string>& variables) {
    return hostFoldersFrom(
        [&](const std::string& name) {
            const auto found = variables.find(name);
            return found == variables.end() ? std::string() : found->second;
        },
        "/home/ann", "/opt/quorrin/bin");
}

TEST(HostFolders, LieUnderTheHomeFolderWhereNothingIsSet) {
    const HostFolders host = with({});
    EXPECT_EQ(host.folders.application, "/home/ann/.local/share/quorrin");
    EXPECT_EQ(host.folders.windows, "/home/ann/.config/quorrin");
    EXPECT_EQ(host.folders.tempVoice, "/home/ann/.cache/quorrin/tempVoice");
    EXPECT_EQ(host.state, "/home/ann/.local/state/quorrin");
    EXPECT_EQ(host.run, "/home/ann/.local/share/quorrin/run");
}

TEST(HostFolders, FollowTheVariablesThatAreSet) {
    const HostFolders host = with({{"XDG_DATA_HOME", "/d/"},
                                   {"XDG_CONFIG_HOME", "/c"},
                                   {"XDG_CACHE_HOME", "/k"},
                                   {"XDG_STATE_HOME", "/s"}});
    EXPECT_EQ(host.folders.application, "/d/quorrin");
    EXPECT_EQ(host.folders.windows, "/c/quorrin");
    EXPECT_EQ(host.folders.tempVoice, "/k/quorrin/tempVoice");
    EXPECT_EQ(host.state, "/s/quorrin");
}

TEST(HostFolders, IgnoreAVariableThatIsNoAbsolutePath) {
    EXPECT_EQ(with({{"XDG_DATA_HOME", "relative"}}).folders.application, "/home/ann/.local/share/quorrin");
}

TEST(HostFolders, TheGatewaysLieBesideTheProgramAndTheShareFolderBesideItsFolder) {
    const HostFolders host = with({});
    EXPECT_EQ(host.folders.programs, "/opt/quorrin/bin");
    EXPECT_EQ(host.share, "/opt/quorrin/share/quorrin");
}

TEST(HostFolders, AreCreatedAtAFirstStart) {
    const TempFolder temp;
    PosixFiles files;
    const HostFolders host = with({{"XDG_DATA_HOME", temp.path() + "/d"},
                                   {"XDG_CONFIG_HOME", temp.path() + "/c"},
                                   {"XDG_CACHE_HOME", temp.path() + "/k"},
                                   {"XDG_STATE_HOME", temp.path() + "/s"}});
    EXPECT_EQ(createHostFolders(files, host), "");
    EXPECT_TRUE(files.folderExists(temp.path() + "/d/quorrin/run"));
    EXPECT_TRUE(files.folderExists(temp.path() + "/c/quorrin"));
    EXPECT_TRUE(files.folderExists(temp.path() + "/k/quorrin/tempVoice"));
    EXPECT_TRUE(files.folderExists(temp.path() + "/s/quorrin"));
}

TEST(HostFolders, NameTheOneThatCannotBeCreated) {
    const TempFolder temp;
    PosixFiles files;
    ASSERT_TRUE(files.writeWhole(temp.path() + "/c", "a file in the way"));
    const HostFolders host =
        with({{"XDG_DATA_HOME", temp.path() + "/d"}, {"XDG_CONFIG_HOME", temp.path() + "/c"}});
    EXPECT_EQ(createHostFolders(files, host), temp.path() + "/c/quorrin");
}

}  // namespace
}  // namespace quorrin
