#include "imaging/photo_archive.h"

#include <string>
#include <utility>

#include "imaging/archive_names.h"
#include "imaging/camera_files.h"

namespace quorrin {

namespace {

constexpr const char* kStart = "Start Capture";
constexpr const char* kStop = "Stop Capture";
constexpr int kFastMs = 333;
constexpr int kSlowMs = 1000;

// Choosing one of the two takes the other's choice away.
void makeExclusive(ControlArray<OptionButton, 2>& options) {
    for (int element : {0, 1})
        options(element).onChange = [&options, element] {
            if (options(element).chosen()) options(1 - element).setChosen(false);
        };
}

}  // namespace

PhotoArchive::PhotoArchive(Clock& clock, Files& files, const PathValues& paths, MultimediaControls& camera,
                           ArchiveControls& controls, std::function<void(ArchiveFault)> onFault)
    : clock_(clock),
      files_(files),
      paths_(paths),
      tmrCatchPhoto_(camera.tmrCatchPhoto),
      controls_(controls),
      onFault_(std::move(onFault)) {
    controls_.cmdCatch.onClick = [this] { cmdCatch_Click(); };
    tmrCatchPhoto_.setHandler([this] { tmrCatchPhoto_Timer(); });
    makeExclusive(controls_.optFramesPerSec);
}

void PhotoArchive::cmdCatch_Click() {
    if (controls_.cmdCatch.caption() != kStart) {
        stop();
        return;
    }
    controls_.cmdCatch.setCaption(kStop);
    onFault_(ArchiveFault::none);
    tmrCatchPhoto_.setInterval(controls_.optFramesPerSec(0).chosen() ? kFastMs : kSlowMs);
    tmrCatchPhoto_.setRunning(true);
}

void PhotoArchive::stop() {
    tmrCatchPhoto_.setRunning(false);
    controls_.cmdCatch.setCaption(kStart);
}

void PhotoArchive::tmrCatchPhoto_Timer() {
    const ArchiveFault fault = archiveCapturedFrame();
    if (fault == ArchiveFault::none) return;
    stop();
    onFault_(fault);
}

ArchiveFault PhotoArchive::archiveCapturedFrame() {
    captureSequence_ = nextCaptureSequence(captureSequence_);
    const std::string day = isoDate(clock_.wallTime());
    if (const ArchiveFault fault = findDayFolder(day); fault != ArchiveFault::none) return fault;
    // The time is read afresh: at midnight the first picture of a day may still go to the day before.
    const std::string target = archiveDayFolder(paths_.applicationFolder, day) + "/" +
                               archivedPictureName(clock_.wallTime(), captureSequence_);
    const auto picture = files_.read(captureJpegPath(paths_.applicationFolder));
    if (!picture) return ArchiveFault::noPicture;
    // Nobody waits for the disk: the control tick shares this thread.
    return files_.writeVolatile(target, *picture) ? ArchiveFault::none : ArchiveFault::notStored;
}

ArchiveFault PhotoArchive::findDayFolder(const std::string& day) {
    const std::string folder = archiveDayFolder(paths_.applicationFolder, day);
    if (files_.folderExists(folder)) return ArchiveFault::none;
    // The port would make the root as well.
    if (!files_.folderExists(archiveFolder(paths_.applicationFolder))) return ArchiveFault::noRoot;
    if (!files_.createFolder(folder)) return ArchiveFault::folderNotMade;
    controls_.cobAvailDate.addItem(day);
    return ArchiveFault::none;
}

}  // namespace quorrin
