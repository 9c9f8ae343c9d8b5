#include "session/console_rooms.h"

namespace quorrin {

ConsoleRooms::ConsoleRooms(const StationPorts& /*ports*/, const ConsoleForms& /*forms*/,
                           SessionSeams& /*seams*/) {}

}  // namespace quorrin
