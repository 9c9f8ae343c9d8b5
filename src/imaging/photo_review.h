// Plays a day's archived pictures like a film: the choice of a day, the playback timer and the transport
// keys. An endless loop in both directions; the fast keys run while they are held and leave the review
// paused.
//
// A day's list is a snapshot: what is captured later is in it when the day is chosen again. Nothing in the
// list is checked beforehand or left out. A picture that cannot be shown leaves the place empty, and a name
// without a time leaves the time empty; onFault says so, and the review goes on at its rate.
//
// fileTolNum, CurrRuningFolderName, playingNumber and VideoPlayMode are the state.
#pragma once

#include <functional>
#include <string>

#include "imaging/picture.h"
#include "platform/files.h"
#include "session/record/archive_controls.h"
#include "session/record/main_form_values.h"
#include "session/record/path_values.h"

namespace quorrin {

// What is wrong with the file that should be shown; nothing, as a rule.
struct ReviewFault {
    std::string name;
    PictureFault picture = PictureFault::none;
    bool noTime = false;  // the name tells none, though it looks like a picture's

    bool any() const { return picture != PictureFault::none || noTime; }
};

class PhotoReview {
  public:
    // All must outlive it. onFault hears of every picture, also of one without a fault.
    PhotoReview(Files& files, const PathValues& paths, ArchiveControls& controls, MainFormValues& values,
                std::function<void(const ReviewFault&)> onFault);
    PhotoReview(const PhotoReview&) = delete;
    PhotoReview& operator=(const PhotoReview&) = delete;

    // Lists the pictures of the folder in the order of their times, and counts them.
    void obtainFileTotalNumber(const std::string& folder);

  private:
    void bindKeys();
    void cobAvailDate_Click();
    void tmrPlayVideo_Timer();
    void cmdPlay_Click();
    void cmdPause_Click();
    void cmdStopReview_Click();
    void spool();
    void endSpooling();

    // Shows the picture, its number and its place in the list.
    PictureFault show(double number);
    bool returnTimeValue(const std::string& fileName);
    // The file name of that number; empty where there is none.
    std::string nameOf(double number) const;

    Files& files_;
    const PathValues& paths_;
    ArchiveControls& controls_;
    MainFormValues& values_;
    std::function<void(const ReviewFault&)> onFault_;
};

}  // namespace quorrin
