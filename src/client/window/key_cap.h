// A key of the keyboard as a button: what stands on the key, and below it what it does. Lights up while it is
// held, by hand or by mouse. Takes no focus, since its own key does the same.
#pragma once

#include <QAbstractButton>

#include "desktop/theme/icons.h"

namespace quorrin {

class KeyCap : public QAbstractButton {
  public:
    // With a picture instead of the text, if it is not IconName::count.
    KeyCap(const QString& cap, IconName picture, const QString& caption, QWidget* parent = nullptr);

    // Held on the keyboard.
    void setLit(bool lit);
    bool lit() const { return lit_ || isDown(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    QFont captionFont() const;
    void drawCap(QPainter& painter, const QRectF& room, const QColor& colour) const;

    IconName picture_;
    QString caption_;
    bool lit_ = false;
};

}  // namespace quorrin
