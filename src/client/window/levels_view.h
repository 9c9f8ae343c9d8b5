// The driving levels that went out last, as a bar of gas and a scale of steering; the numbers stand beside.
#pragma once

#include <QWidget>

#include "client/client_face.h"

namespace quorrin {

class LevelsView : public QWidget {
  public:
    explicit LevelsView(QWidget* parent = nullptr);

    void show(const ClientFace& face);
    using QWidget::show;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    int line() const { return fontMetrics().height(); }
    void drawGas(QPainter& painter, const QRectF& room) const;
    void drawSteering(QPainter& painter, const QRectF& room) const;
    void drawText(QPainter& painter, const QRectF& room, const QString& caption, const QString& value) const;

    QString gasText_;
    QString steeringText_;
    double gas_ = 0;
    double steering_ = 0;
    bool brake_ = false;
};

}  // namespace quorrin
