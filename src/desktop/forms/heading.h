// The maker's mark with a name beside it, at the head of the small windows.
#pragma once

#include <QString>
#include <QWidget>

namespace quorrin {

class Heading : public QWidget {
  public:
    explicit Heading(const QString& name, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    QFont nameFont() const;
    int side() const;

    QString name_;
};

}  // namespace quorrin
