// A lamp of the main form: its colour as the form tells it, and beside the colour a sign and a word, so that
// nothing is told by colour alone.
//
// The colour comes from the form and may blink; sign and word come from whoever knows what the lamp means,
// and stand while it blinks. A lamp that warns is a diamond, any other a disc.
#pragma once

#include <QString>
#include <QWidget>

#include "base/controls.h"
#include "console/lamp_sign.h"
#include "desktop/operator_acts.h"

namespace quorrin {

class Lamp : public QWidget {
  public:
    explicit Lamp(QWidget* parent = nullptr);

    void setFill(Colour fill);
    Colour fill() const { return fill_; }
    void setSign(const LampSign& sign);
    const LampSign& sign() const { return sign_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent*) override;
    void changeEvent(QEvent* event) override;

  private:
    int side() const;
    QString word() const { return QString::fromStdString(sign_.word); }

    Colour fill_ = 0;
    LampSign sign_;
};

}  // namespace quorrin
