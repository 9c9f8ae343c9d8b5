// The main form's controls of the photo archive and its review player.
//
// cobStoreDay is offered and read by nothing: the archive grows without limit. The two notes say what went
// wrong, and are empty while nothing did.
#pragma once

#include "base/controls.h"

namespace quorrin {

struct ArchiveControls {
    ArchiveControls(Form& form, Clock& clock)
        : cmdCatch(form, "cmdCatch", "Start Capture"),
          optFramesPerSec(form, "optFramesPerSec", 0),
          cobStoreDay(form, "cobStoreDay"),
          lblCaptureNote(form, "lblCaptureNote"),
          cobAvailDate(form, "cobAvailDate"),
          lstPlayVideo(form, "lstPlayVideo"),
          picPlayVideo(form, "picPlayVideo"),
          lblDateValue(form, "lblDateValue"),
          lblTimeValue(form, "lblTimeValue"),
          lblPlayingNumber(form, "lblPlayingNumber"),
          cmdPlay(form, "cmdPlay", "PLAY"),
          cmdPause(form, "cmdPause", "PAUSE"),
          cmdStopReview(form, "cmdStopReview", "STOP"),
          cmdForward(form, "cmdForward", "FORWARD"),
          cmdBackward(form, "cmdBackward", "BACKWARD"),
          lblReviewNote(form, "lblReviewNote"),
          tmrPlayVideo(form, "tmrPlayVideo", clock, 300) {
        optFramesPerSec(1).setChosen(true);
    }

    CommandButton cmdCatch;                         // caption is the state
    ControlArray<OptionButton, 2> optFramesPerSec;  // 0: three a second, 1: one a second
    ComboBox cobStoreDay;
    Label lblCaptureNote;  // why the capture was stopped
    ComboBox cobAvailDate;
    ListBox lstPlayVideo;
    Picture picPlayVideo;
    Label lblDateValue;
    Label lblTimeValue;
    Label lblPlayingNumber;
    CommandButton cmdPlay;
    CommandButton cmdPause;
    CommandButton cmdStopReview;
    CommandButton cmdForward;
    CommandButton cmdBackward;
    Label lblReviewNote;  // why the picture under review is not shown
    Timer tmrPlayVideo;
};

}  // namespace quorrin
