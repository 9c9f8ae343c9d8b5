// Draws the strips of button images that the windows carry, one file for each resolution.
//
//   quorrin-draw-skin [FOLDER]     folder: where they go (the current one)
#include <iostream>
#include <string>

#include "desktop/skin/skin_strip.h"

int main(int argc, char** argv) {
    using namespace quorrin;
    const std::string first = argc > 1 ? argv[1] : ".";
    if (first == "--help" || first == "-h") {
        std::cout << "quorrin-draw-skin [FOLDER] | --help | --version\n\n"
                     "Draws the strips of button images, one for each resolution, into FOLDER.\n";
        return 0;
    }
    if (first == "--version") {
        std::cout << "quorrin-draw-skin " QUORRIN_VERSION "\n";
        return 0;
    }
    for (const int scale : kSkinScales) {
        const QString path = QString::fromStdString(first) + "/" + skinFileName(scale);
        if (!drawSkinStrip(scale).save(path, "PNG")) {
            std::cerr << "quorrin-draw-skin: cannot write " << path.toStdString() << "\n";
            return 2;
        }
    }
    return 0;
}
