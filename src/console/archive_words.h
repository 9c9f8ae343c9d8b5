// What the photo archive and its review tell when something goes wrong, for a person. Texts only; no fault is
// the empty text.
#pragma once

#include <string>

#include "imaging/photo_archive.h"
#include "imaging/photo_review.h"

namespace quorrin {

std::string captureFaultText(ArchiveFault fault);
std::string reviewFaultText(const ReviewFault& fault);

}  // namespace quorrin
