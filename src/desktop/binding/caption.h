// The caption of each kind of widget that shows one, written only when it differs. Plain text everywhere: an
// ampersand is a letter here, no shortcut.
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QString>

#include "desktop/widgets/command.h"
#include "desktop/widgets/shadow_label.h"

namespace quorrin {

inline void showCaption(QLabel& widget, const QString& caption) {
    if (widget.text() != caption) widget.setText(caption);
}

inline void showCaption(ShadowLabel& widget, const QString& caption) {
    if (widget.caption() != caption) widget.setCaption(caption);
}

inline void showCaption(Command& widget, const QString& caption) {
    if (widget.caption() != caption) widget.setCaption(caption);
}

inline void showCaption(QAbstractButton& widget, QString caption) {
    caption.replace(u'&', QStringLiteral("&&"));
    if (widget.text() != caption) widget.setText(caption);
}

}  // namespace quorrin
