#include "imaging/photo_review.h"

#include <gmock/gmock.h>

#include "archive_bench.h"

namespace quorrin {
namespace {

using testing::ElementsAre;

constexpr const char* kDay = "2026-11-20";

struct PhotoReviewTest : testing::Test {
    PhotoReviewTest() {
        controls.cobAvailDate.addItem(kDay);
        // As the main form's load leaves them.
        for (CommandButton* key : keys()) key->setEnabled(false);
    }

    std::vector<CommandButton*> keys() {
        return {&controls.cmdPlay, &controls.cmdPause, &controls.cmdStopReview, &controls.cmdForward,
                &controls.cmdBackward};
    }
    // Which of play, pause, stop, forward and backward can be used: "-**--".
    std::string usableKeys() {
        std::string text;
        for (const CommandButton* key : keys()) text += key->enabled() ? '*' : '-';
        return text;
    }
    void putDay(int pictures) {
        for (int i = 1; i <= pictures; ++i) bench.putPictures(kDay, {nameOf(i)});
    }
    // "46346_0.21_0.jpg" is the first one's name.
    static std::string nameOf(int number) { return "46346_0.2" + std::to_string(number) + "_0.jpg"; }
    void choose(const std::string& day = kDay) { controls.cobAvailDate.operatorChoose(day); }
    void chooseDayOf(int pictures) {
        putDay(pictures);
        choose();
    }
    void runFor(std::int64_t ms) { bench.clock.runFor(ms); }
    void ticks(int count) { runFor(300 * count); }
    const std::string& shown() { return controls.picPlayVideo.file(); }
    static std::string pathOf(int number) { return "/app/catchdata/2026-11-20/" + nameOf(number); }

    ArchiveBench bench;
    ArchiveControls& controls = bench.controls;
    MainFormValues& values = bench.values;
    Timer& timer = bench.controls.tmrPlayVideo;
    ReviewFault fault;
    PhotoReview review{bench.files, bench.paths, controls, values,
                       [this](const ReviewFault& told) { fault = told; }};
};

TEST_F(PhotoReviewTest, BeginsToPlayTheChosenDayAtOnce) {
    chooseDayOf(3);
    EXPECT_EQ(usableKeys(), "-****");
    EXPECT_TRUE(timer.running());
    EXPECT_EQ(values.CurrRuningFolderName, "/app/catchdata/2026-11-20");
    EXPECT_EQ(values.fileTolNum, 3);
    EXPECT_EQ(controls.lblDateValue.caption(), "Nov 20, 2026");
    EXPECT_EQ(shown(), "");
    ticks(1);
    EXPECT_EQ(shown(), pathOf(1));
}

TEST_F(PhotoReviewTest, ShowsPictureTimePositionAndPlaceInTheList) {
    chooseDayOf(3);
    ticks(2);
    EXPECT_EQ(shown(), pathOf(2));
    EXPECT_EQ(*controls.picPlayVideo.content(), bench.picture);
    EXPECT_EQ(controls.lblTimeValue.caption(), "05:16:48");
    EXPECT_EQ(controls.lblPlayingNumber.caption(), "2/3");
    EXPECT_EQ(controls.lstPlayVideo.selected(), 1);
    EXPECT_EQ(values.playingNumber, 2);
    EXPECT_FALSE(fault.any());
}

TEST_F(PhotoReviewTest, PlaysAPictureEach300MillisecondsInAnEndlessLoop) {
    chooseDayOf(3);
    std::vector<std::string> seen;
    for (int i = 0; i < 7; ++i) {
        runFor(300);
        seen.push_back(controls.lblPlayingNumber.caption());
    }
    EXPECT_THAT(seen, ElementsAre("1/3", "2/3", "3/3", "1/3", "2/3", "3/3", "1/3"));
}

TEST_F(PhotoReviewTest, KeepsRedisplayingTheOnlyPictureOfADay) {
    chooseDayOf(1);
    for (int i = 0; i < 3; ++i) {
        ticks(1);
        EXPECT_EQ(controls.lblPlayingNumber.caption(), "1/1");
        EXPECT_EQ(values.playingNumber, 0);
        EXPECT_TRUE(timer.running());
    }
}

TEST_F(PhotoReviewTest, ADayWithoutPicturesStopsAtItsFirstTickAndShowsNothing) {
    bench.files.createFolder("/app/catchdata/2026-11-20");
    controls.lblTimeValue.setCaption("as before");
    controls.lblPlayingNumber.setCaption("as before");
    choose();
    EXPECT_EQ(usableKeys(), "-****");
    ticks(1);
    EXPECT_EQ(usableKeys(), "*--**");
    EXPECT_FALSE(timer.running());
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(controls.lblTimeValue.caption(), "as before");
    EXPECT_EQ(controls.lblPlayingNumber.caption(), "as before");
    EXPECT_FALSE(fault.any());
}

TEST_F(PhotoReviewTest, StoppingOrSpoolingADayWithoutPicturesShowsNothing) {
    bench.files.createFolder("/app/catchdata/2026-11-20");
    choose();
    controls.cmdStopReview.operatorClick();
    EXPECT_EQ(controls.lblPlayingNumber.caption(), "1/0");
    EXPECT_EQ(controls.lstPlayVideo.selected(), -1);
    for (CommandButton* key : {&controls.cmdForward, &controls.cmdBackward}) {
        key->operatorPress();
        runFor(500);
        key->operatorRelease();
        EXPECT_EQ(shown(), "");
        EXPECT_FALSE(timer.running());
    }
}

TEST_F(PhotoReviewTest, ADayWhoseFolderIsGoneIsADayWithoutPictures) {
    choose();
    ticks(1);
    EXPECT_EQ(usableKeys(), "*--**");
    EXPECT_EQ(values.fileTolNum, 0);
}

TEST_F(PhotoReviewTest, ListsWhatEndsInJpgInTheOrderOfTheTimes) {
    bench.putPictures(kDay, {"46346_0.375_1.jpg", "46346_0.375011574074074_2.JPG", "46346_0.25_3.Jpg",
                             "46346_0.5_4jpg", "46346_0.1_5.jpeg", "46346_0.1_6.bmp", "notes.txt"});
    bench.files.put("/app/catchdata/2026-11-20/deeper/46346_0.2_1.jpg", "x");
    choose();
    EXPECT_EQ(controls.lstPlayVideo.valueText(),
              "46346_0.25_3.Jpg\n46346_0.375_1.jpg\n46346_0.375011574074074_2.JPG\n46346_0.5_4jpg");
    EXPECT_EQ(values.fileTolNum, 4);
}

TEST_F(PhotoReviewTest, ANameWithoutTheEndingHasTheEmptyTimeAndIsShown) {
    bench.putPictures(kDay, {"46346_0.25_3.jpg", "46346_0.5_4jpg", "46346_0.6_4.JPG"});
    choose();
    ticks(1);
    EXPECT_EQ(controls.lblTimeValue.caption(), "06:00:00");
    for (const char* name : {"46346_0.5_4jpg", "46346_0.6_4.JPG"}) {
        ticks(1);
        EXPECT_EQ(controls.lblTimeValue.caption(), "");
        EXPECT_EQ(shown(), std::string("/app/catchdata/2026-11-20/") + name);
        EXPECT_FALSE(fault.any());
    }
}

TEST_F(PhotoReviewTest, AListIsWhatWasThereWhenItsDayWasChosen) {
    chooseDayOf(2);
    bench.putPictures(kDay, {nameOf(3)});
    ticks(2);
    EXPECT_EQ(controls.lblPlayingNumber.caption(), "2/2");
    choose();
    EXPECT_EQ(controls.lstPlayVideo.count(), 3U);
    EXPECT_EQ(values.playingNumber, 0);
}

TEST_F(PhotoReviewTest, AnotherDayTakesThePlaceOfTheFirst) {
    chooseDayOf(3);
    ticks(2);
    bench.putPictures("2026-11-19", {"46345_0.5_1.jpg"});
    controls.cobAvailDate.addItem("2026-11-19");
    choose("2026-11-19");
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(controls.lstPlayVideo.valueText(), "46345_0.5_1.jpg");
    EXPECT_EQ(controls.lstPlayVideo.selected(), -1);
    EXPECT_EQ(controls.lblDateValue.caption(), "Nov 19, 2026");
    ticks(1);
    EXPECT_EQ(shown(), "/app/catchdata/2026-11-19/46345_0.5_1.jpg");
}

TEST_F(PhotoReviewTest, ChoosingADayPlaysFromPausedToo) {
    chooseDayOf(3);
    ticks(1);
    controls.cmdPause.operatorClick();
    choose();
    EXPECT_TRUE(timer.running());
    EXPECT_EQ(usableKeys(), "-****");
    EXPECT_EQ(controls.cmdPause.caption(), "CONT.");
}

TEST_F(PhotoReviewTest, PausesAndGoesOn) {
    chooseDayOf(3);
    ticks(1);
    controls.cmdPause.operatorClick();
    EXPECT_EQ(controls.cmdPause.caption(), "CONT.");
    EXPECT_EQ(usableKeys(), "-****");
    ticks(5);
    EXPECT_EQ(shown(), pathOf(1));
    controls.cmdPause.operatorClick();
    EXPECT_EQ(controls.cmdPause.caption(), "PAUSE");
    ticks(1);
    EXPECT_EQ(shown(), pathOf(2));
}

TEST_F(PhotoReviewTest, StopsAtTheFirstPicture) {
    chooseDayOf(3);
    ticks(3);
    controls.cmdStopReview.operatorClick();
    EXPECT_EQ(usableKeys(), "*--**");
    EXPECT_FALSE(timer.running());
    EXPECT_EQ(values.playingNumber, 0);
    EXPECT_EQ(shown(), pathOf(1));
    EXPECT_EQ(controls.lblPlayingNumber.caption(), "1/3");
    EXPECT_EQ(controls.lstPlayVideo.selected(), 0);
    controls.cmdPlay.operatorClick();
    EXPECT_EQ(usableKeys(), "-****");
    ticks(2);
    EXPECT_EQ(shown(), pathOf(2));
}

TEST_F(PhotoReviewTest, StoppingWhilePausedLeavesTheWrongCaptionUntilPauseIsPressed) {
    chooseDayOf(3);
    ticks(1);
    controls.cmdPause.operatorClick();
    controls.cmdStopReview.operatorClick();
    EXPECT_EQ(controls.cmdPause.caption(), "CONT.");
    controls.cmdPlay.operatorClick();
    EXPECT_EQ(controls.cmdPause.caption(), "CONT.");
    EXPECT_TRUE(timer.running());
    controls.cmdPause.operatorClick();
    EXPECT_EQ(controls.cmdPause.caption(), "PAUSE");
    EXPECT_TRUE(timer.running());
}

TEST_F(PhotoReviewTest, SpoolsForwardAtTenPicturesASecondWhileTheKeyIsHeld) {
    chooseDayOf(9);
    ticks(1);
    controls.cmdForward.operatorPress();
    EXPECT_EQ(usableKeys(), "*--**");
    runFor(700);
    EXPECT_EQ(shown(), pathOf(8));
    controls.cmdForward.operatorRelease();
    EXPECT_EQ(timer.interval(), 300);
    runFor(5000);
    EXPECT_EQ(shown(), pathOf(8));
}

TEST_F(PhotoReviewTest, ReleasingForwardInTheMiddleOfPlaybackLeavesItPausedAtNormalSpeed) {
    chooseDayOf(9);
    ticks(2);
    controls.cmdForward.operatorPress();
    controls.cmdForward.operatorRelease();
    EXPECT_FALSE(timer.running());
    EXPECT_EQ(usableKeys(), "*--**");
    controls.cmdPlay.operatorClick();
    ticks(1);
    EXPECT_EQ(shown(), pathOf(3));
}

TEST_F(PhotoReviewTest, SpoolsBackwardWhileTheKeyIsHeld) {
    chooseDayOf(9);
    ticks(5);
    controls.cmdBackward.operatorPress();
    EXPECT_EQ(values.VideoPlayMode, "BACK");
    runFor(300);
    EXPECT_EQ(shown(), pathOf(4));
    EXPECT_EQ(values.playingNumber, 2);
    controls.cmdBackward.operatorRelease();
    EXPECT_EQ(values.VideoPlayMode, "");
    EXPECT_EQ(timer.interval(), 300);
    EXPECT_FALSE(timer.running());
    EXPECT_EQ(usableKeys(), "*--**");
}

TEST_F(PhotoReviewTest, HoldingBackwardAtTheFirstPictureJumpsToTheLast) {
    chooseDayOf(3);
    controls.cmdBackward.operatorPress();
    std::vector<std::string> seen;
    for (int i = 0; i < 5; ++i) {
        runFor(100);
        seen.push_back(controls.lblPlayingNumber.caption());
    }
    EXPECT_THAT(seen, ElementsAre("1/3", "3/3", "2/3", "1/3", "3/3"));
}

TEST_F(PhotoReviewTest, AKeyThatIsHeldThroughTheChoiceOfAnotherDayStillEndsItsSpooling) {
    chooseDayOf(3);
    controls.cmdBackward.operatorPress();
    choose();
    controls.cmdBackward.operatorRelease();
    EXPECT_EQ(values.VideoPlayMode, "");
    EXPECT_EQ(timer.interval(), 300);
}

TEST_F(PhotoReviewTest, APictureThatIsNoneIsToldOfAndLeavesItsPlaceEmpty) {
    putDay(3);
    bench.files.put(pathOf(2), "no picture at all");
    choose();
    ticks(2);
    EXPECT_EQ(fault.picture, PictureFault::notAPicture);
    EXPECT_EQ(fault.name, nameOf(2));
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(controls.lblPlayingNumber.caption(), "2/3");
    EXPECT_EQ(controls.lstPlayVideo.selected(), 1);
}

TEST_F(PhotoReviewTest, TheReviewGoesOnBehindAPictureThatCannotBeShown) {
    putDay(3);
    bench.files.put(pathOf(2), "");
    choose();
    ticks(3);
    EXPECT_EQ(shown(), pathOf(3));
    EXPECT_FALSE(fault.any());
}

TEST_F(PhotoReviewTest, APictureThatIsGoneOrCutShortIsToldOf) {
    putDay(2);
    bench.files.put(pathOf(2), bench.picture.substr(0, bench.picture.size() / 2));
    choose();
    bench.files.remove(pathOf(1));
    ticks(1);
    EXPECT_EQ(fault.picture, PictureFault::missing);
    ticks(1);
    EXPECT_EQ(fault.picture, PictureFault::damaged);
}

TEST_F(PhotoReviewTest, ANameThatTellsNoTimeIsToldOfAndShown) {
    bench.putPictures(kDay, {"holiday.jpg"});
    choose();
    ticks(1);
    EXPECT_TRUE(fault.noTime);
    EXPECT_EQ(controls.lblTimeValue.caption(), "");
    EXPECT_EQ(shown(), "/app/catchdata/2026-11-20/holiday.jpg");
}

TEST_F(PhotoReviewTest, AFaultIsTakenBackByTheChoiceOfADay) {
    putDay(1);
    bench.files.put(pathOf(1), "");
    choose();
    ticks(1);
    EXPECT_TRUE(fault.any());
    choose();
    EXPECT_FALSE(fault.any());
}

TEST_F(PhotoReviewTest, StoppingAtAPictureThatCannotBeShownSaysSo) {
    putDay(2);
    bench.files.put(pathOf(1), "");
    choose();
    ticks(2);
    controls.cmdStopReview.operatorClick();
    EXPECT_EQ(fault.picture, PictureFault::empty);
    EXPECT_EQ(shown(), "");
}

}  // namespace
}  // namespace quorrin
