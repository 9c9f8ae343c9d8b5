#include "session/archive_rooms.h"

#include "console/archive_words.h"

namespace quorrin {

ArchiveRooms::ArchiveRooms(const StationPorts& ports, const PublicValues& values, frmGUI& gui)
    : archive_(ports.clock, ports.files, values, gui, gui,
               [&gui](ArchiveFault fault) { gui.lblCaptureNote.setCaption(captureFaultText(fault)); }),
      review_(ports.files, values, gui, gui,
              [&gui](const ReviewFault& fault) { gui.lblReviewNote.setCaption(reviewFaultText(fault)); }) {}

}  // namespace quorrin
