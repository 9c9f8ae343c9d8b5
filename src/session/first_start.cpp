#include "session/first_start.h"

namespace quorrin {

namespace {
constexpr const char* kSiteFiles[] = {"office.bmp", "office_s.bmp", "happy8k.wav", "quorrin128.bmp",
                                      "Quorrinsdk.ini"};
constexpr const char* kArchive = "catchdata";
}  // namespace

FirstStart fillApplicationFolder(Files& files, const std::string& applicationFolder,
                                 const std::string& shareFolder) {
    FirstStart result;
    for (const std::string name : kSiteFiles) {
        const std::string own = applicationFolder + "/" + name;
        const std::string shipped = shareFolder + "/" + name;
        if (files.fileExists(own)) continue;
        if (!files.fileExists(shipped)) {
            result.missing.push_back(name);
        } else if (files.copy(shipped, own)) {
            result.copied.push_back(name);
        } else {
            result.unwritable.push_back(name);
        }
    }
    const std::string archive = applicationFolder + "/" + kArchive;
    if (!files.folderExists(archive) && !files.createFolder(archive)) result.unwritable.push_back(kArchive);
    return result;
}

std::vector<std::string> FirstStart::complaints(const std::string& applicationFolder,
                                                const std::string& shareFolder) const {
    std::vector<std::string> lines;
    for (const std::string& name : missing) {
        lines.push_back("site file " + name + " is neither in " + applicationFolder + " nor in " +
                        shareFolder);
    }
    for (const std::string& name : unwritable) {
        lines.push_back(name + " cannot be written into " + applicationFolder);
    }
    return lines;
}

}  // namespace quorrin
