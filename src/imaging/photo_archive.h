// Stores the camera's pictures by day, at one of two rates: the key that starts and stops it, and the step
// that the capture timer takes.
//
// The step copies the picture file that the camera chain wrote last; it does not follow the frames, so that a
// slow camera gives the same picture twice and a fast one pictures that are skipped. The rate is read when a
// capture starts and at no other time. Nothing is ever deleted here, and the archive's root is not made: it
// is there, or the step fails.
//
// A step that fails stops the capture, as the key would, and says why through onFault; nothing is thrown. The
// capture timer is enabled from start-up on, without a period: that keeps the chain compressing, and it does
// not fire.
#pragma once

#include <functional>

#include "platform/clock.h"
#include "platform/files.h"
#include "session/record/archive_controls.h"
#include "session/record/multimedia_controls.h"
#include "session/record/path_values.h"

namespace quorrin {

// Why a picture could not be stored.
enum class ArchiveFault {
    none,
    noRoot,         // there is no folder for the archive
    folderNotMade,  // the day's folder cannot be created
    noPicture,      // the camera chain has written none, or it cannot be read
    notStored       // the picture cannot be written
};

class PhotoArchive {
  public:
    // All must outlive it. onFault hears `none` when a capture starts.
    PhotoArchive(Clock& clock, Files& files, const PathValues& paths, MultimediaControls& camera,
                 ArchiveControls& controls, std::function<void(ArchiveFault)> onFault);
    PhotoArchive(const PhotoArchive&) = delete;
    PhotoArchive& operator=(const PhotoArchive&) = delete;

  private:
    void cmdCatch_Click();
    void tmrCatchPhoto_Timer();
    ArchiveFault archiveCapturedFrame();
    ArchiveFault findDayFolder(const std::string& day);
    void stop();

    Clock& clock_;
    Files& files_;
    const PathValues& paths_;
    Timer& tmrCatchPhoto_;
    ArchiveControls& controls_;
    std::function<void(ArchiveFault)> onFault_;
    int captureSequence_ = 0;  // never stored, and counted on by a step that fails, too
};

}  // namespace quorrin
