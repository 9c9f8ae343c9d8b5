// The photo archive and its review in one station: bound to the main form's controls, their faults told in
// its two notes.
//
// Owns the logic objects; the form, the record and the ports are the station's and must outlive it.
#pragma once

#include "console/frm_gui.h"
#include "imaging/photo_archive.h"
#include "imaging/photo_review.h"
#include "session/record/public_values.h"
#include "session/station_ports.h"

namespace quorrin {

class ArchiveRooms {
  public:
    ArchiveRooms(const StationPorts& ports, const PublicValues& values, frmGUI& gui);

  private:
    PhotoArchive archive_;
    PhotoReview review_;
};

}  // namespace quorrin
