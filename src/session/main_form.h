// The main form's life: load, the keys of a session, the frames of both links, unload and shutdown.
//
// Owns the tasks and the three timers of the control tick; frmGUI keeps a second reference to the driver,
// which unload drops. Load blocks a second and delivers nothing. The shutdown routine runs once, also when a
// yield inside it, or inside the tick, asks for it again; it ends with the port's endProgram and does not
// return.
#pragma once

#include <functional>
#include <memory>

#include "console/frm_control_panel.h"
#include "console/frm_gui.h"
#include "navigation/anti_stuck.h"
#include "navigation/gps.h"
#include "navigation/sensor_map_builder.h"
#include "navigation/teleoperation.h"
#include "platform/timer_mm.h"
#include "session/control_tick.h"
#include "session/record/public_values.h"
#include "session/session_seams.h"
#include "session/station_ports.h"

namespace quorrin {

class MainForm {
  public:
    MainForm(const StationPorts& ports, PublicValues& values, frmGUI& gui, frmControlPanel& panel,
             SessionSeams& seams);
    ~MainForm();
    MainForm(const MainForm&) = delete;
    MainForm& operator=(const MainForm&) = delete;

    void Form_Load();
    void Form_Unload();
    void shutdown();

    const GPS* gps() const { return GPSUnit_.get(); }
    const SensorMapBuilder* sensorMap() const { return sensorMapBuilderTask_.get(); }
    const AntiStuck* antiStuck() const { return antiStuckTask_.get(); }
    const speedP2PVFH* navigator() const { return driver_ ? driver_->navigator() : nullptr; }

  private:
    // main_form.cpp
    void bindKeys();
    void bindCounters();
    void cmdStart_Click();
    void cmdChEn_Click();
    void cmdEnCA_Click();
    void Stoprobot_Click();
    void closeGateway(const char* title);
    // frame_events.cpp
    void bindFrames();
    void unbindFrames();
    void PowerFrame();
    // load.cpp
    void startMultimediaGateway();
    void setStartValues();
    void readNeutralServos();
    void createTimers();
    void startTasks();
    void setDashboardDefaults();
    void setUpRemoteAndSound();
    void fillDates();
    void startFormTimers();
    // shutdown.cpp
    void endTasks();

    StationPorts ports_;
    PublicValues& values_;
    frmGUI& gui_;
    frmControlPanel& panel_;
    SessionSeams& seams_;
    ControlTick tick_;
    bool closing_ = false;

    std::unique_ptr<TimerMM> tmrComping_;
    std::unique_ptr<TimerMM> tmrControl_;
    std::unique_ptr<TimerMM> displayTimer_;
    std::unique_ptr<GPS> GPSUnit_;
    std::unique_ptr<SensorMapBuilder> sensorMapBuilderTask_;
    std::unique_ptr<AntiStuck> antiStuckTask_;
    std::shared_ptr<Teleoperation> driver_;
};

}  // namespace quorrin
