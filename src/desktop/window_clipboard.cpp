#include "desktop/window_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

namespace quorrin {

bool WindowClipboard::placeBitmap(const ClipboardPicture& picture) {
    const qsizetype rowBytes = qsizetype{3} * picture.width;
    if (picture.width < 1 || picture.height < 1 ||
        static_cast<qsizetype>(picture.pixels.size()) != rowBytes * picture.height)
        return false;
    const QImage shared(reinterpret_cast<const uchar*>(picture.pixels.data()), picture.width, picture.height,
                        rowBytes, QImage::Format_RGB888);
    QClipboard* const clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setImage(shared.copy());
    const QMimeData* const taken = clipboard->mimeData();
    return taken != nullptr && taken->hasImage();
}

}  // namespace quorrin
