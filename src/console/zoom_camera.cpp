#include "console/zoom_camera.h"

#include "base/program_error.h"
#include "base/resume_on_error.h"
#include "base/whole_bitmap.h"

namespace quorrin {

ZoomCamera::ZoomCamera(Clock& clock, Files& files, PublicValues& values, frmGUI& gui, frmZoomCamera& form,
                       DragState& drag)
    : files_(files), values_(values), form_(form), drag_(clock, form, drag) {
    gui.cmdZoomCamera.onClick = [this] { cmdZoomCamera_Click(); };
    form_.cmdClose.onClick = [this] { cmdClose_Click(); };
    form_.onClose = [this] { Form_Unload(); };
    form_.tmrShowImage.setHandler([this] { tmrShowImage_Timer(); });
}

void ZoomCamera::cmdZoomCamera_Click() {
    values_.zoomCameraOpen = true;
    zoomCameraShown_ = true;
    if (!loaded_) Form_Load();
    form_.show();
}

void ZoomCamera::cmdClose_Click() {
    values_.zoomCameraOpen = false;
    zoomCameraShown_ = false;
    form_.close();
}

void ZoomCamera::Form_Load() {
    loaded_ = true;
    form_.Image1.clear();
    form_.tmrShowImage.setRunning(true);
}

void ZoomCamera::Form_Unload() {
    values_.zoomCameraOpen = false;
    form_.tmrShowImage.setRunning(false);
    loaded_ = false;
    form_.hide();
}

void ZoomCamera::tmrShowImage_Timer() {
    resumeOnError([this] {
        const std::string path = values_.applicationFolder + "/tempImage.bmp";
        auto content = files_.read(path);
        if (!content || !isWholeBitmap(*content)) throw ProgramError("no picture in " + path);
        form_.Image1.setContent(path, *std::move(content));
    });
}

}  // namespace quorrin
