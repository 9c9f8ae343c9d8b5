// frmGUI, the one main form of a session: all its controls as values, by groups, and its public fields.
//
// It holds no logic; the session binds handlers to the controls. The task reference is shared with the
// session that built the task: dropping it here ends nothing.
#pragma once

#include <memory>

#include "base/form.h"
#include "session/record/archive_controls.h"
#include "session/record/camera_controls.h"
#include "session/record/fold_out_controls.h"
#include "session/record/lamp_controls.h"
#include "session/record/main_form_values.h"
#include "session/record/map_controls.h"
#include "session/record/motion_controls.h"
#include "session/record/multimedia_controls.h"
#include "session/record/navigation_controls.h"
#include "session/record/network_controls.h"
#include "session/record/power_controls.h"
#include "session/record/remains_controls.h"
#include "session/record/session_controls.h"
#include "session/record/sound_controls.h"

namespace quorrin {

class Teleoperation;

struct frmGUI : Form,
                SessionControls,
                FoldOutControls,
                NavigationControls,
                LampControls,
                MotionControls,
                PowerControls,
                MultimediaControls,
                NetworkControls,
                CameraControls,
                ArchiveControls,
                SoundControls,
                MapControls,
                RemainsControls,
                MainFormValues {
    explicit frmGUI(Clock& clock)
        : Form("frmGUI"),
          SessionControls(static_cast<Form&>(*this), clock),
          FoldOutControls(static_cast<Form&>(*this)),
          NavigationControls(static_cast<Form&>(*this)),
          LampControls(static_cast<Form&>(*this)),
          MotionControls(static_cast<Form&>(*this)),
          PowerControls(static_cast<Form&>(*this), clock),
          MultimediaControls(static_cast<Form&>(*this), clock),
          NetworkControls(static_cast<Form&>(*this), clock),
          CameraControls(static_cast<Form&>(*this)),
          ArchiveControls(static_cast<Form&>(*this), clock),
          SoundControls(static_cast<Form&>(*this), clock),
          MapControls(static_cast<Form&>(*this)),
          RemainsControls(static_cast<Form&>(*this), clock) {}

    std::shared_ptr<Teleoperation> teleoperationtask;
    std::shared_ptr<Teleoperation> wonderingtask;  // declared for a second task, never assigned
};

}  // namespace quorrin
