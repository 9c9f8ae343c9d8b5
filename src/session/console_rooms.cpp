#include "session/console_rooms.h"

#include "console/human_timer.h"

namespace quorrin {

ConsoleRooms::ConsoleRooms(const StationPorts& ports, const ConsoleForms& forms, SessionSeams& seams)
    : controlPanel_(ports.clock, forms.values, forms.gui, forms.panel, drag_, ports.myRobot),
      zoomCamera_(ports.clock, ports.files, forms.values, forms.gui, forms.zoomCamera, drag_),
      about_(forms.values, forms.gui, forms.about, ports.openWebPage, QUORRIN_VERSION),
      joystick_(ports.joysticks, forms.values, forms.gui, forms.panel) {
    seams.closeAbout = [this] { about_.unload(); };
    seams.closeZoomCamera = [this] { zoomCamera_.unload(); };
    bindHumanTimer(forms.gui.tmrHuman);
    seams.setUpJoystick = [this] {
        joystick_.InitDirectInput();
        joystick_.acquireJoystick();
    };
}

}  // namespace quorrin
