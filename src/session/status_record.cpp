#include "session/status_record.h"

#include "base/number_text.h"

namespace quorrin {

namespace {
constexpr int kTicksBetweenBroadcasts = 51;
constexpr int kTickLimit = 32765;
constexpr int kChangeLimit = 32766;
}  // namespace

std::string statusRecord(const frmGUI& gui) {
    return gui.txtRobotCurrX.text() + "," + gui.txtRobotCurrY.text() + "," + gui.txtRobotCurrZ.text() + "," +
           gui.txtHumanLocation.text() + "," + gui.txtRobotStatus.text() + "," +
           std::to_string(gui.statusRecordTail.value());
}

void broadcastStatus(const frmGUI& gui, const std::function<void(int, const std::string&)>& sendStatus) {
    const int lines = static_cast<int>(gui.ConnectionList.count());
    for (int i = 0; i < lines; ++i) {
        const std::string record = statusRecord(gui);
        if (gui.sensorClientConnected && sendStatus) sendStatus(i + 1, record);
    }
}

void stepStatusBroadcast(frmGUI& gui, const std::function<void(int, const std::string&)>& sendStatus) {
    gui.statusBroadcastTicks =
        gui.statusBroadcastTicks < kTickLimit ? gui.statusBroadcastTicks + 1 : Integer(0);
    if (gui.statusBroadcastTicks < kTicksBetweenBroadcasts) return;
    broadcastStatus(gui, sendStatus);
    gui.statusBroadcastTicks = 0;
}

void reportChange(const frmGUI& gui, bool remoteCommandsSeen,
                  const std::function<void(int, const std::string&)>& sendStatus) {
    if (remoteCommandsSeen && gui.ConnectionList.count() > 0) broadcastStatus(gui, sendStatus);
}

void countChange(TextBox& txtChangeCount) {
    const double next = toDouble(txtChangeCount.text()) + 1;
    txtChangeCount.setText(next >= kChangeLimit ? "0" : formatShortest(next));
}

}  // namespace quorrin
