#include "console/archive_words.h"

namespace quorrin {

std::string captureFaultText(ArchiveFault fault) {
    const std::string stopped = "Capture stopped: ";
    switch (fault) {
        case ArchiveFault::none:
            return "";
        case ArchiveFault::noRoot:
            return stopped + "the folder catchdata is missing.";
        case ArchiveFault::folderNotMade:
            return stopped + "no folder can be made for this day. The disk may be full or not writable.";
        case ArchiveFault::noPicture:
            return stopped + "the camera has given no picture.";
        case ArchiveFault::notStored:
            return stopped + "the picture cannot be stored. The disk may be full or not writable.";
    }
    return "";
}

std::string reviewFaultText(const ReviewFault& fault) {
    if (fault.picture != PictureFault::none) return fault.name + ": " + pictureFaultText(fault.picture) + ".";
    return fault.noTime ? fault.name + ": the name tells no time." : "";
}

}  // namespace quorrin
