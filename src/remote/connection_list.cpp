#include "remote/connection_list.h"

namespace quorrin {

std::string connectionEntry(const Socket& element) {
    return element.remoteHostIP() + "  [" + std::to_string(element.remotePort()) + "] - [" +
           std::to_string(element.localPort()) + "]";
}

void addConnectionEntry(const Socket& element, int index, ListBox& list) {
    list.add(connectionEntry(element), index);
}

void removeConnectionEntry(const Socket& element, ListBox& list) {
    const std::string entry = connectionEntry(element);
    for (std::size_t i = list.count(); i > 0; --i) {
        if (list.line(i - 1) == entry) list.remove(i - 1);
    }
}

}  // namespace quorrin
