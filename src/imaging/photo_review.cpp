#include "imaging/photo_review.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/program_error.h"
#include "imaging/archive_names.h"
#include "imaging/picture_loader.h"
#include "imaging/review_position.h"

namespace quorrin {

namespace {

constexpr const char* kPause = "PAUSE";
constexpr const char* kContinue = "CONT.";
constexpr const char* kBack = "BACK";
constexpr int kNormalMs = 300;
constexpr int kFastMs = 100;

}  // namespace

PhotoReview::PhotoReview(Files& files, const PathValues& paths, ArchiveControls& controls,
                         MainFormValues& values, std::function<void(const ReviewFault&)> onFault)
    : files_(files), paths_(paths), controls_(controls), values_(values), onFault_(std::move(onFault)) {
    bindKeys();
    controls_.cobAvailDate.onClick = [this] { cobAvailDate_Click(); };
    controls_.tmrPlayVideo.setHandler([this] { tmrPlayVideo_Timer(); });
}

void PhotoReview::bindKeys() {
    controls_.cmdPlay.onClick = [this] { cmdPlay_Click(); };
    controls_.cmdPause.onClick = [this] { cmdPause_Click(); };
    controls_.cmdStopReview.onClick = [this] { cmdStopReview_Click(); };
    controls_.cmdForward.onMouseDown = [this] { spool(); };
    controls_.cmdForward.onMouseUp = [this] { endSpooling(); };
    controls_.cmdBackward.onMouseDown = [this] {
        spool();
        values_.VideoPlayMode = kBack;
    };
    controls_.cmdBackward.onMouseUp = [this] {
        endSpooling();
        values_.VideoPlayMode.clear();
    };
}

void PhotoReview::cobAvailDate_Click() {
    controls_.lstPlayVideo.setLines({});
    values_.playingNumber = 0;
    for (CommandButton* key : {&controls_.cmdPlay, &controls_.cmdPause, &controls_.cmdStopReview,
                               &controls_.cmdForward, &controls_.cmdBackward})
        key->setEnabled(false);
    controls_.tmrPlayVideo.setRunning(false);
    controls_.picPlayVideo.clear();
    onFault_({});

    const std::string day = controls_.cobAvailDate.text();
    values_.CurrRuningFolderName = archiveDayFolder(paths_.applicationFolder, day);
    obtainFileTotalNumber(values_.CurrRuningFolderName);
    controls_.lblDateValue.setCaption(archiveDateText(day));

    for (CommandButton* key :
         {&controls_.cmdPause, &controls_.cmdStopReview, &controls_.cmdForward, &controls_.cmdBackward})
        key->setEnabled(true);
    controls_.tmrPlayVideo.setRunning(true);
}

void PhotoReview::obtainFileTotalNumber(const std::string& folder) {
    std::vector<std::string> names = files_.filesIn(folder);
    names.erase(std::remove_if(names.begin(), names.end(),
                               [](const std::string& name) { return !isArchivedPicture(name); }),
                names.end());
    // They come in an order that is nearly this one, which a merge is quickest with.
    std::stable_sort(names.begin(), names.end(), comesBefore);
    values_.fileTolNum = static_cast<double>(names.size());
    controls_.lstPlayVideo.setLines(std::move(names));
}

void PhotoReview::tmrPlayVideo_Timer() {
    const double playing = values_.playingNumber;
    const auto next = nextReviewPosition(playing, values_.fileTolNum, values_.VideoPlayMode == kBack);
    if (!next) {
        controls_.tmrPlayVideo.setRunning(false);
        controls_.cmdPlay.setEnabled(true);
        controls_.cmdStopReview.setEnabled(false);
        controls_.cmdPause.setEnabled(false);
        return;
    }
    const std::string name = nameOf(playing);
    const bool timed = returnTimeValue(name);
    onFault_({name, show(playing), !timed});
    values_.playingNumber = *next;
}

PictureFault PhotoReview::show(double number) {
    const std::string name = nameOf(number);
    controls_.lblPlayingNumber.setCaption(reviewPositionText(number, values_.fileTolNum));
    controls_.lstPlayVideo.select(static_cast<int>(number));
    if (name.empty()) {
        controls_.picPlayVideo.clear();
        return PictureFault::none;
    }
    const std::string path = values_.CurrRuningFolderName + "/" + name;
    auto content = files_.read(path);
    const PictureFault fault = content ? readPicture(*content).fault : PictureFault::missing;
    if (fault == PictureFault::none) {
        controls_.picPlayVideo.setContent(path, *std::move(content));
    } else {
        controls_.picPlayVideo.clear();
    }
    return fault;
}

bool PhotoReview::returnTimeValue(const std::string& fileName) {
    try {
        controls_.lblTimeValue.setCaption(pictureTimeText(fileName));
        return true;
    } catch (const ProgramError&) {
        controls_.lblTimeValue.setCaption("");
        return false;
    }
}

std::string PhotoReview::nameOf(double number) const {
    const auto line = static_cast<std::size_t>(std::max(0.0, number));
    return line < controls_.lstPlayVideo.count() ? controls_.lstPlayVideo.line(line) : std::string();
}

void PhotoReview::cmdPlay_Click() {
    controls_.cmdPlay.setEnabled(false);
    controls_.cmdPause.setEnabled(true);
    controls_.cmdStopReview.setEnabled(true);
    controls_.tmrPlayVideo.setRunning(true);
}

void PhotoReview::cmdPause_Click() {
    const bool plays = controls_.cmdPause.caption() == kPause;
    controls_.cmdPause.setCaption(plays ? kContinue : kPause);
    controls_.tmrPlayVideo.setRunning(!plays);
}

// The caption of the pause key stays as it is.
void PhotoReview::cmdStopReview_Click() {
    controls_.cmdPlay.setEnabled(true);
    controls_.cmdPause.setEnabled(false);
    controls_.cmdStopReview.setEnabled(false);
    controls_.tmrPlayVideo.setRunning(false);
    values_.playingNumber = 0;
    onFault_({nameOf(0), show(0), false});
}

void PhotoReview::spool() {
    controls_.tmrPlayVideo.setInterval(kFastMs);
    controls_.tmrPlayVideo.setRunning(true);
    controls_.cmdPlay.setEnabled(true);
    controls_.cmdPause.setEnabled(false);
    controls_.cmdStopReview.setEnabled(false);
}

void PhotoReview::endSpooling() {
    controls_.tmrPlayVideo.setInterval(kNormalMs);
    controls_.tmrPlayVideo.setRunning(false);
}

}  // namespace quorrin
