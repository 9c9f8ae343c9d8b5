// Draws the console's two plan pictures, office.bmp and office_s.bmp, from a site.
//
//   quorrin-draw-plan [SITE [FOLDER]]     site: a name or a file (office); folder: where they go (the current
//   one)
#include <iostream>

#include "platform/host/host_folders.h"
#include "platform/host/posix_files.h"
#include "robot/plan_picture.h"

int main(int argc, char** argv) {
    using namespace quorrin;
    const std::string first = argc > 1 ? argv[1] : "office";
    if (first == "--help" || first == "-h") {
        std::cout
            << "quorrin-draw-plan [SITE [FOLDER]] | --help | --version\n\n"
               "Draws office.bmp and office_s.bmp, the plan of the site and its overview, into FOLDER.\n";
        return 0;
    }
    if (first == "--version") {
        std::cout << "quorrin-draw-plan " QUORRIN_VERSION "\n";
        return 0;
    }
    const std::string folder = argc > 2 ? argv[2] : ".";
    PosixFiles files;
    try {
        const Site site = loadSite(first, hostFolders().share + "/sites", files);
        const auto write = [&](const char* name, int width, int height) {
            const std::string path = folder + "/" + name;
            if (!files.writeWhole(path, bitmapFile(drawPlan(site, width, height, true))))
                throw SiteError("cannot write " + path);
        };
        write("office.bmp", kBigPlanWidth, kBigPlanHeight);
        write("office_s.bmp", kOverviewWidth, kOverviewHeight);
    } catch (const SiteError& error) {
        std::cerr << "quorrin-draw-plan: " << error.what() << "\n";
        return 2;
    }
    return 0;
}
