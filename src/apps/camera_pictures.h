// Picture files for the simulated robot's camera, read as the station reads its own: bitmaps and JPEG.
#pragma once

#include <string>

#include "imaging/picture_loader.h"
#include "robot/stand_in_pictures.h"

namespace quorrin {

inline PictureReader pictureFileReader(Files& files) {
    return [&files](const std::string& path, std::string& fault) {
        const LoadedPicture loaded = loadPicture(files, path);
        fault = pictureFaultText(loaded.fault);
        CameraPicture picture;
        if (!loaded.bitmap) return picture;
        picture.width = loaded.bitmap->width();
        picture.height = loaded.bitmap->height();
        picture.pixels.reserve(3 * static_cast<std::size_t>(picture.width) *
                               static_cast<std::size_t>(picture.height));
        for (int y = 0; y < picture.height; ++y) {
            const std::uint8_t* row = loaded.bitmap->row(y);
            for (int x = 0; x < picture.width; ++x, row += 3)
                for (const int part : {2, 1, 0}) picture.pixels += static_cast<char>(row[part]);
        }
        return picture;
    };
}

}  // namespace quorrin
