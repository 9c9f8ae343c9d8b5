#include "desktop/station_windows.h"

#include "console/maker.h"
#include "desktop/forms/about_window.h"
#include "desktop/forms/closing_sign.h"
#include "desktop/forms/control_panel_window.h"
#include "desktop/forms/login_window.h"
#include "desktop/forms/main_window.h"
#include "desktop/forms/notice_window.h"
#include "desktop/forms/zoom_window.h"
#include "desktop/paint_now.h"
#include "desktop/views/live_views.h"
#include "session/console_rooms.h"

namespace quorrin {

namespace {

QStringList makers() {
    QStringList lines;
    for (const char* line : kDesignTeam) lines << QString::fromUtf8(line);
    return lines;
}

}  // namespace

struct StationWindows::Windows {
    Windows(Station& station, const OperatorActs& acts)
        : login(station.login, acts),
          main(station.gui, station.values, station.controlPanel, acts,
               new LiveViews(
                   {station.values, station.gui, [&station] { return station.navigator(); }, acts.clock()})),
          panel(station.controlPanel, station.console().controlPanel().drag(), acts, &main),
          zoom(station.zoomCamera, station.console().zoomCamera().drag(), acts),
          about(station.about, acts, makers()),
          closing(main) {}

    LoginWindow login;
    MainWindow main;
    ControlPanelWindow panel;
    ZoomWindow zoom;
    AboutWindow about;
    ClosingSign closing;
    NoticeWindow notices;
};

StationWindows::StationWindows(Station& station, const OperatorActs& acts)
    : station_(station), windows_(std::make_unique<Windows>(station, acts)) {}

StationWindows::~StationWindows() = default;

void StationWindows::beforeBlock() {
    if (station_.gui.shown() && !station_.gui.formRunning) windows_->closing.show();
    paintDirtyWindows();
}

void StationWindows::say(const std::string& complaint) {
    windows_->notices.say(complaint);
}

}  // namespace quorrin
