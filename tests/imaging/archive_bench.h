// The archive's and the review's controls on a form that is shown, with files in memory and virtual time. The
// day is 2026-11-20, 09:00:00 at the beginning.
#pragma once

#include <string>
#include <vector>

#include "imaging/camera_files.h"
#include "platform/virtual/memory_files.h"
#include "platform/virtual/virtual_clock.h"
#include "session/record/archive_controls.h"
#include "session/record/main_form_values.h"
#include "session/record/multimedia_controls.h"
#include "session/record/path_values.h"
#include "support/picture_files.h"

namespace quorrin {

struct ArchiveBench {
    static constexpr CivilTime kNine = {2026, 11, 20, 9, 0, 0};

    explicit ArchiveBench(const CivilTime& wallAtZero = kNine) : clock(wallAtZero) {
        paths.applicationFolder = "/app";
        files.createFolder("/app/catchdata");
        form.show();
    }

    // The camera chain has written this.
    void putCapture(const std::string& content) { files.put(captureJpegPath("/app"), content); }
    void putPictures(const std::string& day, const std::vector<std::string>& names) {
        for (const std::string& name : names) files.put("/app/catchdata/" + day + "/" + name, picture);
    }
    std::vector<std::string> archived(const std::string& day) {
        return files.filesIn("/app/catchdata/" + day);
    }

    VirtualClock clock;
    MemoryFiles files;
    PathValues paths;
    Form form{"frmGUI"};
    MultimediaControls camera{form, clock};
    ArchiveControls controls{form, clock};
    MainFormValues values;
    std::string picture = jpegFile(*cornersPicture(16, 8), 75);
};

}  // namespace quorrin
