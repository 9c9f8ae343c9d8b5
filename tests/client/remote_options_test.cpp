// The command line of quorrin-remote.
#include "client/remote_options.h"

#include <gmock/gmock.h>

namespace quorrin {
namespace {

TEST(RemoteOptionsTest, HostAndScriptAreTaken) {
    const RemoteOptions options = parseRemoteOptions({"--host", "10.0.0.2", "--script", "a.txt"});
    EXPECT_EQ(options.error, "");
    EXPECT_EQ(options.host, "10.0.0.2");
    EXPECT_EQ(options.script, "a.txt");
}

TEST(RemoteOptionsTest, NothingAtAllIsTheWindow) {
    const RemoteOptions options = parseRemoteOptions({});
    EXPECT_EQ(options.error, "");
    EXPECT_EQ(options.script, "");
}

TEST(RemoteOptionsTest, AnErrorNamesItsArgument) {
    EXPECT_EQ(parseRemoteOptions({"--hots", "x"}).error, "unknown option --hots");
    EXPECT_EQ(parseRemoteOptions({"--host"}).error, "--host needs a value");
    EXPECT_EQ(parseRemoteOptions({"--host", "x", "--script", ""}).error, "--script needs a value");
    EXPECT_EQ(parseRemoteOptions({"--script", "a.txt"}).error, "--script needs --host");
}

TEST(RemoteOptionsTest, HelpTellsEveryVerbOfAScript) {
    EXPECT_TRUE(parseRemoteOptions({"--help"}).help);
    EXPECT_TRUE(parseRemoteOptions({"--version"}).version);
    for (const char* word : {"connect", "hangup", "drive", "mode", "clos", "ping", "wait", "expect report",
                             "say", "quit", "--host", "--script"})
        EXPECT_THAT(remoteUsage(), testing::HasSubstr(word));
}

}  // namespace
}  // namespace quorrin
