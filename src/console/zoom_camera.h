// What the zoom window does: it shows the picture file that the camera chain saved last, ten times a second
// at most, and costs that chain nothing. When the chain stops, so does the picture; without a file, the
// window stays blank.
//
// A file that cannot be read at the moment, or is not there as a whole, is skipped, and the picture stays.
#pragma once

#include "console/frm_gui.h"
#include "console/frm_zoom_camera.h"
#include "console/window_drag.h"
#include "platform/files.h"
#include "session/record/public_values.h"

namespace quorrin {

class ZoomCamera {
  public:
    // All must outlive it.
    ZoomCamera(Clock& clock, Files& files, PublicValues& values, frmGUI& gui, frmZoomCamera& form,
               DragState& drag);
    ZoomCamera(const ZoomCamera&) = delete;
    ZoomCamera& operator=(const ZoomCamera&) = delete;

    // The window's body, by which it is dragged.
    WindowDrag& drag() { return drag_; }
    // Unloads the form, if it is open, when the main form closes.
    void unload() { form_.close(); }
    // Set and cleared with zoomCameraOpen, but for a window that is closed without its key; read by nobody.
    bool zoomCameraShown() const { return zoomCameraShown_; }

  private:
    void cmdZoomCamera_Click();
    void cmdClose_Click();
    void tmrShowImage_Timer();
    void Form_Load();
    void Form_Unload();

    Files& files_;
    PublicValues& values_;
    frmZoomCamera& form_;
    WindowDrag drag_;
    bool zoomCameraShown_ = false;
    bool loaded_ = false;
};

}  // namespace quorrin
