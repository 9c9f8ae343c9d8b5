// A panel that lies over the form: a card with a title, a close key and contents that scroll where the room
// is too small. Where it lies and whether it shows is for whoever owns it.
#pragma once

#include <QScrollArea>
#include <QWidget>

namespace quorrin {

class FoldOut : public QWidget {
  public:
    FoldOut(const QString& title, QWidget* closeKey, QWidget* contents, QWidget* over);

    // The size at which nothing scrolls.
    QSize wholeSize() const;

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    QScrollArea* area_;
    QWidget* contents_;
    QWidget* head_;
};

}  // namespace quorrin
