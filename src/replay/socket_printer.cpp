#include "replay/socket_printer.h"

#include <string>

namespace quorrin {

void printSockets(VirtualSockets& sockets, Output& output) {
    const auto print = [&output](const char* what, const std::string& array, const char* key, int number) {
        output.begin();
        output.addText(what, array);
        output.addWhole(key, number);
        output.end();
    };
    sockets.onListen = [print](const std::string& array, int port) { print("listen", array, "port", port); };
    sockets.onAccept = [print](const std::string& array, int element) {
        print("accept", array, "element", element);
    };
    sockets.onShut = [print](const std::string& array, int element) {
        print("shut", array, "element", element);
    };
    sockets.onSend = [&output](const std::string& array, int element, std::string_view bytes) {
        output.begin();
        output.addText("send", array);
        output.addWhole("element", element);
        output.addBytes(bytes);
        output.end();
    };
}

}  // namespace quorrin
