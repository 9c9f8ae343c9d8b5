// Stands over a window that closes and still holds still for a moment.
#pragma once

#include <QLabel>
#include <QWidget>

namespace quorrin {

class ClosingSign {
  public:
    explicit ClosingSign(QWidget& window);

    void show();
    bool shown() const { return !label_->isHidden(); }

  private:
    QWidget& window_;
    QLabel* label_;  // the window's
};

}  // namespace quorrin
