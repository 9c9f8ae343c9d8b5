// Puts widgets into as many columns as the width holds, each widget at the foot of the column that is
// shortest so far. As high as the highest column; the width is given from outside, as by a scroll area.
#pragma once

#include <QWidget>
#include <vector>

namespace quorrin {

class FlowColumns : public QWidget {
  public:
    FlowColumns(std::vector<QWidget*> widgets, int gap, QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override { return minimumSizeHint(); }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

  protected:
    void resizeEvent(QResizeEvent*) override;
    bool event(QEvent* event) override;

  private:
    // Where everything goes at that width; the height that it takes.
    int deal(int width, std::vector<QRect>& places) const;
    int columnWidth() const;
    void place();

    std::vector<QWidget*> widgets_;
    int gap_;
};

}  // namespace quorrin
