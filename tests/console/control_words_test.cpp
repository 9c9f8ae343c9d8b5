#include "console/control_words.h"

#include <gmock/gmock.h>

#include <cctype>
#include <map>
#include <set>

#include "console/live_view_words.h"
#include "console/menu_words.h"
#include "console/page_words.h"
#include "support/station_bench.h"

namespace quorrin {
namespace {

const std::set<std::string> kPanelKeys = {"Up",  "Down", "Left",   "Right",  "Space",    "Home",
                                          "End", "Del",  "Delete", "PgDown", "Backspace"};

// A window shows every control but the timers and the hidden holder of a frame.
bool isSeen(const Control& control) {
    return dynamic_cast<const Timer*>(&control) == nullptr && control.name() != "picTest";
}

struct ControlWordsOfAllForms : testing::Test {
    StationBench bench;

    template <typename Look>
    void eachSeen(Look look) {
        for (Form* form : bench.station.forms()) {
            for (const Control* control : form->controls()) {
                if (isSeen(*control)) look(*form, *control, controlWords(form->name(), control->name()));
            }
        }
    }
};

TEST_F(ControlWordsOfAllForms, EveryControlThatIsSeenHasAName) {
    int seen = 0;
    eachSeen([&](const Form& form, const Control& control, const ControlWords& words) {
        EXPECT_NE(words.name, "") << form.name() << "." << control.name();
        ++seen;
    });
    EXPECT_GT(seen, 200);
}

TEST_F(ControlWordsOfAllForms, NoTwoControlsOfOneFormHaveTheSameName) {
    std::map<std::string, std::string> owners;
    eachSeen([&](const Form& form, const Control& control, const ControlWords& words) {
        const auto [at, isNew] = owners.emplace(form.name() + ": " + words.name, control.name());
        EXPECT_TRUE(isNew) << at->first << " names " << at->second << " and " << control.name();
    });
}

TEST_F(ControlWordsOfAllForms, EveryToolTipIsMadeOfSentences) {
    eachSeen([&](const Form& form, const Control& control, const ControlWords& words) {
        ASSERT_NE(words.tip, "") << form.name() << "." << control.name();
        const auto first = static_cast<unsigned char>(words.tip.front());
        EXPECT_TRUE(std::isupper(first) != 0 || std::isdigit(first) != 0) << words.tip;
        EXPECT_EQ(words.tip.back(), '.') << words.tip;
    });
}

TEST_F(ControlWordsOfAllForms, NoTwoShortcutsOfOneFormClash) {
    std::map<std::string, std::string> owners;
    for (const MenuEntry entry : {MenuEntry::engineeringView, MenuEntry::lightTheme, MenuEntry::darkTheme})
        EXPECT_TRUE(owners.emplace("frmGUI: " + menuWords(entry).shortcut, menuWords(entry).text).second);
    owners.emplace(std::string("frmGUI: ") + liveViewWords().moveKeys, "live views");
    for (const PanelPage page : {PanelPage::liveView, PanelPage::charts, PanelPage::ranges, PanelPage::tasks,
                                 PanelPage::power, PanelPage::photos, PanelPage::remoteData})
        EXPECT_TRUE(owners.emplace("frmGUI: " + pageWords(page).shortcut, pageWords(page).name).second);
    // The menu's own letter.
    owners.emplace("frmGUI: Alt+V", menuWords(MenuEntry::viewMenu).text);
    eachSeen([&](const Form& form, const Control& control, const ControlWords& words) {
        if (words.shortcut.empty()) return;
        const auto [at, isNew] = owners.emplace(form.name() + ": " + words.shortcut, control.name());
        EXPECT_TRUE(isNew) << at->first << " reaches " << at->second << " and " << control.name();
    });
}

TEST_F(ControlWordsOfAllForms, NoShortcutTakesAKeyThatTheControlPanelDrivesBy) {
    eachSeen([&](const Form& form, const Control& control, const ControlWords& words) {
        EXPECT_EQ(kPanelKeys.count(words.shortcut), 0U) << form.name() << "." << control.name();
        // On the panel itself every key is a driving key.
        if (form.name() == "frmControlPanel") {
            EXPECT_EQ(words.shortcut, "") << control.name();
        }
    });
}

TEST_F(ControlWordsOfAllForms, NoShortcutIsAKeyThatIsTypedIntoABox) {
    eachSeen([&](const Form&, const Control& control, const ControlWords& words) {
        if (words.shortcut.empty()) return;
        const bool functionKey = words.shortcut.size() > 1 && words.shortcut.front() == 'F';
        const bool withModifier = words.shortcut.find('+') != std::string::npos;
        EXPECT_TRUE(functionKey || withModifier || words.shortcut == "Esc") << control.name();
        for (const char* editing : {"Ctrl+A", "Ctrl+C", "Ctrl+E", "Ctrl+K", "Ctrl+U", "Ctrl+V", "Ctrl+X",
                                    "Ctrl+Y", "Ctrl+Z", "Ctrl+Shift+Z"})
            EXPECT_NE(words.shortcut, editing) << control.name();
    });
}

TEST_F(ControlWordsOfAllForms, EveryBoxThatIsSeenHasALabelBesideIt) {
    eachSeen([&](const Form& form, const Control& control, const ControlWords&) {
        if (dynamic_cast<const TextBox*>(&control) == nullptr || form.name() == "frmLogin") return;
        EXPECT_NE(fieldLabel(form.name(), control.name()), "") << control.name();
    });
}

TEST_F(ControlWordsOfAllForms, AKeyWithoutACaptionAndWithoutAPictureHasALabel) {
    const std::set<std::string> withPicture = {"cmdChEn",  "cmdZoomCamera", "btnOpenMusic",
                                               "cmdClose", "cmdGasDown",    "cmdHeadDown"};
    eachSeen([&](const Form& form, const Control& control, const ControlWords&) {
        const auto* key = dynamic_cast<const CommandButton*>(&control);
        if (key == nullptr || !key->caption().empty() || withPicture.count(key->name()) > 0) return;
        EXPECT_NE(fieldLabel(form.name(), control.name()), "") << control.name();
    });
}

TEST(ControlWords, AnUnknownControlHasNoWords) {
    EXPECT_EQ(controlWords("frmGUI", "cmdNowhere").name, "");
    EXPECT_EQ(controlWords("frmNowhere", "cmdExit").tip, "");
    EXPECT_EQ(fieldLabel("frmGUI", "cmdNowhere"), "");
}

TEST(ControlWords, TheFixedCaptionsBesideTheFieldsStandAsTheyAre) {
    const std::map<std::string, std::string> fixed = {
        {"shpBatteryStatus(0)", "Battery1 Status:"},
        {"shpBatteryStatus(1)", "Battery2 Status:"},
        {"shpBatteryStatus(2)", "DCIN Status:"},
        {"shpBatteryStatus(3)", "CHARGE :"},
        {"shpBatteryStatus(4)", "Temperature:"},
        {"shpBatteryStatus(5)", "Left Motor:"},
        {"shpBatteryStatus(6)", "Right Motor:"},
        {"ConnectionList", "Remote Address"},
        {"txtRobotCurrX", "Robot X"},
        {"txtRobotCurrY", "Robot Y"},
        {"txtRobotCurrZ", "Robot Angle"},
        {"txtRobotStatus", "Robot Status"},
        {"sldImageQuality", "Image Quality:"},
        {"lblImageQuality", "Currently Image Quality:"},
        {"optFramesPerSec(0)", "3 frames per second"},
        {"optFramesPerSec(1)", "1 frame per second"},
        {"cobStoreDay", "Store"},
    };
    for (const auto& [control, caption] : fixed) EXPECT_EQ(fieldLabel("frmGUI", control), caption);
    EXPECT_EQ(fieldSuffix("frmGUI", "cobStoreDay"), "Days Image Data");
}

TEST(ControlWords, TheFixedCaptionsOfTheGroupsStandAsTheyAre) {
    const std::map<std::string, std::string> fixed = {
        {"fra(1)", "Control Panel"},
        {"frmMotor", "Motor Protection"},
        {"fra(13)", "Power Status"},
        {"fraNetwork", "Network Status"},
        {"fraMapDisplay", "Whole Layout Picture"},
        {"fraBat", "Battery Status:"},
        {"fra(12)", "Review Captured Photoes:"},
        {"fra(11)", "Photo Capture Setting:"},
        {"fra(7)", "Broadcast Sound to Robot"},
        {"fra(3)", "Sending Data:"},
        {"fra(8)", "Human Presence"},
        {"fra(0)", "Received Data:"},
        {"fra(4)", "Image Quality:"},
    };
    for (const auto& [group, caption] : fixed) EXPECT_EQ(frameTitle(group), caption) << group;
    EXPECT_EQ(frameTitle("fra(99)"), "");
}

TEST(ControlWords, AGroupWithoutATitleHasANameToBeReadAloud) {
    for (const char* group : {"fra(2)", "fra(5)", "fra(9)"}) {
        EXPECT_EQ(frameTitle(group), "") << group;
        EXPECT_NE(frameName(group), "") << group;
    }
    EXPECT_EQ(frameName("fra(13)"), "Power Status");
    EXPECT_EQ(frameName("fra(99)"), "");
}

TEST(ControlWords, EveryPictureThatIsASignHasAWord) {
    EXPECT_EQ(pictureWord("cmdChEn", 2), "IDLE");
    EXPECT_NE(pictureWord("imgNetwork", 4), pictureWord("imgNetwork", 5));
    EXPECT_NE(pictureWord("imgStatus", 1), pictureWord("imgStatus", 3));
    EXPECT_NE(pictureWord("inLight", 9), pictureWord("inLight", 11));
    EXPECT_NE(pictureWord("outLight", 6), pictureWord("outLight", 8));
    EXPECT_EQ(pictureWord("imgLogo", 1), "");
}

TEST(ControlWords, AKeyWithAPictureAndNoCaptionSaysWhatItIsAndWhatThePictureSays) {
    EXPECT_EQ(pictureCaption("cmdChEn", 1), "Mode: wondering");
    EXPECT_EQ(pictureCaption("cmdChEn", 2), "Mode: IDLE");
    EXPECT_EQ(pictureCaption("cmdChEn", 3), "Mode: JOY");
    EXPECT_EQ(pictureCaption("cmdChEn", 0), "Mode") << "before there is a session";
}

TEST(MenuWords, EveryEntryHasTextAndTip) {
    for (const MenuEntry entry :
         {MenuEntry::viewMenu, MenuEntry::engineeringView, MenuEntry::lightTheme, MenuEntry::darkTheme}) {
        EXPECT_NE(menuWords(entry).text.find('&'), std::string::npos);
        EXPECT_EQ(menuWords(entry).tip.back(), '.');
    }
}

TEST(MenuWords, EveryFormHasAWindowTitle) {
    for (const char* form : {"frmLogin", "frmGUI", "frmControlPanel", "frmZoomCamera", "frmAbout"})
        EXPECT_NE(windowTitle(form), "") << form;
}

}  // namespace
}  // namespace quorrin
