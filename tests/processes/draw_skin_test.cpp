// The tool that draws the buttons' skins, as a program: it needs no display, and says when it cannot write.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/process.h"
#include "support/temp_folder.h"

namespace quorrin {
namespace {

struct DrawSkin : testing::Test {
    TempFolder folder;

    int run(const std::vector<std::string>& arguments, std::string& output) {
        // Neither kind of display.
        std::vector<std::string> command = {
            "/usr/bin/env", "-u", "DISPLAY", "-u", "WAYLAND_DISPLAY", QUORRIN_BIN_DIR "/quorrin-draw-skin"};
        command.insert(command.end(), arguments.begin(), arguments.end());
        Process program(command, {folder.path()}, "draw-skin.out");
        const auto status = program.ends(10);
        output = program.output();
        return status.value_or(-1);
    }
};

TEST_F(DrawSkin, WritesAPictureForEachResolutionWithoutADisplay) {
    std::string output;
    EXPECT_EQ(run({folder.path()}, output), 0) << output;
    for (const char* name : {"buttons_1x.png", "buttons_2x.png", "buttons_3x.png", "buttons_4x.png"})
        EXPECT_EQ(fileText(folder.path() + "/" + name).substr(1, 3), "PNG") << name;
}

TEST_F(DrawSkin, SaysWhichFileItCannotWrite) {
    std::string output;
    EXPECT_EQ(run({folder.path() + "/nowhere"}, output), 2);
    EXPECT_NE(output.find("cannot write " + folder.path() + "/nowhere/buttons_1x.png"), std::string::npos)
        << output;
}

TEST_F(DrawSkin, TellsHowItIsUsedAndWhichVersionItIs) {
    std::string output;
    EXPECT_EQ(run({"--help"}, output), 0);
    EXPECT_EQ(output.rfind("quorrin-draw-skin [FOLDER]", 0), 0U) << output;
    EXPECT_EQ(run({"--version"}, output), 0);
    EXPECT_EQ(output.rfind("quorrin-draw-skin ", 0), 0U) << output;
}

}  // namespace
}  // namespace quorrin
