#include "session/end_task.h"

namespace quorrin {

bool EndTask(const std::string& windowTitle, PathValues& paths, Programs& programs, MessageBoxes& boxes,
             Clock& clock) {
    paths.gatewayWindowTitle = windowTitle;
    const Programs::Window window = programs.findWindow(paths.gatewayWindowTitle);
    if (window == 0) return false;
    if (!programs.isWindow(window)) {
        boxes.show("EndTask: cannot terminate " + paths.gatewayWindowTitle + " task", "", BoxButtons::ok);
        return false;
    }
    programs.postClose(window);
    clock.yield();
    return true;
}

}  // namespace quorrin
