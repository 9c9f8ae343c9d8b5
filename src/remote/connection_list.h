// The list of connected clients: one line for each accepted command connection,
// "ADDRESS  [PORT OF THE CLIENT] - [LOCAL PORT]", with the element's index as the line's number.
#pragma once

#include <string>

#include "base/controls.h"
#include "platform/sockets.h"

namespace quorrin {

std::string connectionEntry(const Socket& element);
void addConnectionEntry(const Socket& element, int index, ListBox& list);
// Removes every line of that element's text.
void removeConnectionEntry(const Socket& element, ListBox& list);

}  // namespace quorrin
