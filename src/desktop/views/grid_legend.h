// The legend of the grid's picture: each mark as it is drawn there, with its words. Never changes but for its
// colours and width.
#pragma once

#include <QWidget>

#include "console/live_view_words.h"

namespace quorrin {

class GridLegend : public QWidget {
  public:
    explicit GridLegend(QWidget* parent = nullptr);
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QSize entrySize() const;
    int columnsFor(int width) const;
};

}  // namespace quorrin
