// What the first start of an installation puts into the application folder: its site files, and the empty
// photo archive.
//
// Copies what is not there from the installation's share folder; it never overwrites, so a site's own plan or
// greeting stays. Nothing here fails: what could not be supplied is named in the result, and the station
// lives without it.
#pragma once

#include <string>
#include <vector>

#include "platform/files.h"

namespace quorrin {

struct FirstStart {
    std::vector<std::string> copied;      // file names
    std::vector<std::string> missing;     // not in the application folder, nor in the share folder
    std::vector<std::string> unwritable;  // there is something to copy, or a folder to make, and it cannot be

    // One line for each thing that is missing or unwritable; empty when all is well.
    std::vector<std::string> complaints(const std::string& applicationFolder,
                                        const std::string& shareFolder) const;
};

// Folders are absolute, without a trailing "/".
FirstStart fillApplicationFolder(Files& files, const std::string& applicationFolder,
                                 const std::string& shareFolder);

}  // namespace quorrin
