#include "imaging/photo_archive.h"

#include <gmock/gmock.h>

#include "archive_bench.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct PhotoArchiveTest : testing::Test {
    explicit PhotoArchiveTest(const CivilTime& wallAtZero = ArchiveBench::kNine) : bench(wallAtZero) {
        bench.putCapture("picture 1");
        // As the main form's load leaves it.
        timer.setRunning(true);
    }

    void click() { controls.cmdCatch.operatorClick(); }
    void runFor(std::int64_t ms) { bench.clock.runFor(ms); }
    std::vector<std::string> today() { return bench.archived("2026-11-20"); }

    ArchiveBench bench;
    ArchiveControls& controls = bench.controls;
    Timer& timer = bench.camera.tmrCatchPhoto;
    std::vector<ArchiveFault> faults;
    PhotoArchive archive{bench.clock,  bench.files, bench.paths,
                         bench.camera, controls,    [this](ArchiveFault fault) { faults.push_back(fault); }};
};

TEST_F(PhotoArchiveTest, DoesNotFireBeforeItsKeyWasPressedThoughItsTimerIsEnabled) {
    runFor(60'000);
    EXPECT_TRUE(timer.running());
    EXPECT_THAT(today(), IsEmpty());
}

TEST_F(PhotoArchiveTest, StoresOnePictureASecondAtFirst) {
    click();
    EXPECT_EQ(controls.cmdCatch.caption(), "Stop Capture");
    runFor(999);
    EXPECT_THAT(today(), IsEmpty());
    runFor(1);
    EXPECT_THAT(today(), ElementsAre("46346_0.375011574074074_1.jpg"));
    runFor(9000);
    EXPECT_THAT(today(), SizeIs(10));
}

TEST_F(PhotoArchiveTest, StoresThreePicturesASecondWhereThatIsChosen) {
    controls.optFramesPerSec(0).operatorChoose();
    click();
    runFor(999);
    EXPECT_THAT(today(), ElementsAre("46346_0.375_1.jpg", "46346_0.375_2.jpg", "46346_0.375_3.jpg"));
}

TEST_F(PhotoArchiveTest, HasOneOfTheTwoRatesChosen) {
    EXPECT_TRUE(controls.optFramesPerSec(1).chosen());
    controls.optFramesPerSec(0).operatorChoose();
    EXPECT_TRUE(controls.optFramesPerSec(0).chosen());
    EXPECT_FALSE(controls.optFramesPerSec(1).chosen());
    controls.optFramesPerSec(1).operatorChoose();
    EXPECT_FALSE(controls.optFramesPerSec(0).chosen());
    EXPECT_TRUE(controls.optFramesPerSec(1).chosen());
}

TEST_F(PhotoArchiveTest, ReadsTheRateAtTheNextStartOnly) {
    click();
    runFor(500);
    controls.optFramesPerSec(0).operatorChoose();
    runFor(500);
    EXPECT_THAT(today(), SizeIs(1));
    runFor(999);
    EXPECT_THAT(today(), SizeIs(1));
    click();
    click();
    EXPECT_EQ(timer.interval(), 333);
}

TEST_F(PhotoArchiveTest, StopsAtTheSecondPress) {
    click();
    runFor(2500);
    click();
    EXPECT_EQ(controls.cmdCatch.caption(), "Start Capture");
    EXPECT_FALSE(timer.running());
    runFor(10'000);
    EXPECT_THAT(today(), SizeIs(2));
}

TEST_F(PhotoArchiveTest, GivesFivePicturesTheDigits1To4And0) {
    click();
    runFor(5000);
    EXPECT_THAT(today(), ElementsAre("46346_0.375011574074074_1.jpg", "46346_0.375023148148148_2.jpg",
                                     "46346_0.375034722222222_3.jpg", "46346_0.375046296296296_4.jpg",
                                     "46346_0.37505787037037_0.jpg"));
}

TEST_F(PhotoArchiveTest, CountsItsDigitOnFromOneCaptureToTheNext) {
    click();
    runFor(2000);
    click();
    click();
    runFor(1000);
    EXPECT_EQ(today().back(), "46346_0.375034722222222_3.jpg");
}

TEST_F(PhotoArchiveTest, StoresTheSamePictureAgainWhenTheCameraIsSlow) {
    click();
    runFor(2000);
    bench.putCapture("picture 2");
    runFor(1000);
    const auto names = today();
    ASSERT_THAT(names, SizeIs(3));
    EXPECT_EQ(bench.files.read("/app/catchdata/2026-11-20/" + names[0]), "picture 1");
    EXPECT_EQ(bench.files.read("/app/catchdata/2026-11-20/" + names[1]), "picture 1");
    EXPECT_EQ(bench.files.read("/app/catchdata/2026-11-20/" + names[2]), "picture 2");
}

TEST_F(PhotoArchiveTest, ReplacesAPictureOfTheSameName) {
    bench.files.put("/app/catchdata/2026-11-20/46346_0.375011574074074_1.jpg", "old");
    click();
    runFor(1000);
    EXPECT_EQ(bench.files.read("/app/catchdata/2026-11-20/46346_0.375011574074074_1.jpg"), "picture 1");
}

TEST_F(PhotoArchiveTest, OffersADayWhenItHasMadeItsFolder) {
    controls.cobAvailDate.addItem("2026-11-19");
    click();
    runFor(3000);
    EXPECT_THAT(controls.cobAvailDate.items(), ElementsAre("2026-11-19", "2026-11-20"));
}

TEST_F(PhotoArchiveTest, DoesNotOfferADayAgainThatHasItsFolder) {
    bench.files.createFolder("/app/catchdata/2026-11-20");
    controls.cobAvailDate.addItem("2026-11-20");
    click();
    runFor(3000);
    EXPECT_THAT(controls.cobAvailDate.items(), ElementsAre("2026-11-20"));
}

TEST_F(PhotoArchiveTest, DeletesNothing) {
    bench.putPictures("2020-01-01", {"43831_0.5_1.jpg"});
    click();
    runFor(20'000);
    EXPECT_THAT(bench.archived("2020-01-01"), SizeIs(1));
    EXPECT_THAT(today(), SizeIs(20));
}

struct PhotoArchiveAtMidnight : PhotoArchiveTest {
    PhotoArchiveAtMidnight() : PhotoArchiveTest({2026, 11, 20, 23, 59, 58}) {}
};

TEST_F(PhotoArchiveAtMidnight, GoesOnInTheNewDaysFolderAndOffersItLast) {
    click();
    runFor(3000);
    EXPECT_THAT(today(), ElementsAre("46346_0.999988425925926_1.jpg"));
    EXPECT_THAT(bench.archived("2026-11-21"),
                ElementsAre("46347_0.0000115740740740741_3.jpg", "46347_0_2.jpg"));
    EXPECT_THAT(controls.cobAvailDate.items(), ElementsAre("2026-11-20", "2026-11-21"));
}

// A clock that goes on by a second each time it is asked.
class HastyClock : public VirtualClock {
  public:
    using VirtualClock::VirtualClock;
    CivilTime wallTime() const override { return plusSeconds({2026, 11, 20, 23, 59, 59}, asked_++); }

  private:
    mutable int asked_ = 0;
};

TEST(PhotoArchiveAtTheStrokeOfMidnight, TheFirstFileMayBearTheDateReadAMomentAfterTheFolder) {
    ArchiveBench bench;
    bench.putCapture("picture");
    HastyClock clock;
    const PhotoArchive archive(clock, bench.files, bench.paths, bench.camera, bench.controls,
                               [](ArchiveFault) {});
    bench.controls.cmdCatch.operatorClick();
    bench.clock.runFor(1000);
    EXPECT_THAT(bench.archived("2026-11-20"), ElementsAre("46347_0_1.jpg"));
}

struct PhotoArchiveFaults : PhotoArchiveTest {
    // Starts a capture whose first step fails, and looks at what that leaves behind.
    void failOnce(ArchiveFault expected) {
        click();
        faults.clear();
        runFor(1000);
        EXPECT_THAT(faults, ElementsAre(expected));
        EXPECT_FALSE(timer.running());
        EXPECT_EQ(controls.cmdCatch.caption(), "Start Capture");
        runFor(5000);
        EXPECT_THAT(faults, SizeIs(1));
    }
};

TEST_F(PhotoArchiveFaults, AMissingPictureStopsTheCapture) {
    bench.files.remove(captureJpegPath("/app"));
    failOnce(ArchiveFault::noPicture);
    EXPECT_THAT(today(), IsEmpty());
}

TEST_F(PhotoArchiveFaults, AMissingRootStopsTheCaptureAndIsNotMade) {
    bench.paths.applicationFolder = "/elsewhere";
    bench.files.createFolder("/elsewhere");
    failOnce(ArchiveFault::noRoot);
    EXPECT_FALSE(bench.files.folderExists("/elsewhere/catchdata"));
    EXPECT_THAT(controls.cobAvailDate.items(), IsEmpty());
}

TEST_F(PhotoArchiveFaults, AFullDiskStopsTheCaptureAndKeepsWhatIsThere) {
    click();
    runFor(1000);
    click();
    bench.files.setDiskFull(true);
    failOnce(ArchiveFault::notStored);
    EXPECT_THAT(today(), SizeIs(1));
}

TEST_F(PhotoArchiveFaults, ADayWhoseFolderCannotBeMadeStopsTheCaptureAndIsNotOffered) {
    bench.files.setReadOnly("/app/catchdata");
    failOnce(ArchiveFault::folderNotMade);
    EXPECT_THAT(controls.cobAvailDate.items(), IsEmpty());
}

TEST_F(PhotoArchiveFaults, AReadOnlyFolderStopsTheCapture) {
    bench.files.createFolder("/app/catchdata/2026-11-20");
    bench.files.setReadOnly("/app/catchdata/2026-11-20");
    failOnce(ArchiveFault::notStored);
}

TEST_F(PhotoArchiveFaults, AFaultIsTakenBackByTheNextStart) {
    bench.files.remove(captureJpegPath("/app"));
    failOnce(ArchiveFault::noPicture);
    bench.putCapture("picture");
    click();
    EXPECT_THAT(faults, ElementsAre(ArchiveFault::noPicture, ArchiveFault::none));
    runFor(1000);
    EXPECT_THAT(faults, SizeIs(2));
    // The digit counted on in the step that failed.
    EXPECT_THAT(today(), ElementsAre("46346_0.375081018518518_2.jpg"));
}

}  // namespace
}  // namespace quorrin
