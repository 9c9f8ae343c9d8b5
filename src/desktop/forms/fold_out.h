// A panel that lies over the form: a card with a title, a close key and contents that scroll where the room
// is too small. Where it lies and whether it shows is for whoever owns it.
//
// Opening it brings it to the front and the keyboard to its close key; closing it gives the keyboard back to
// where it was before, unless it has gone elsewhere meanwhile. The form is told of neither.
#pragma once

#include <QPointer>
#include <QScrollArea>
#include <QWidget>

namespace quorrin {

class FoldOut : public QWidget {
  public:
    FoldOut(const QString& title, QWidget* closeKey, QWidget* contents, QWidget* over);

    // Between the title and the close key.
    void putInHead(QWidget* widget);
    // The size at which nothing scrolls.
    QSize wholeSize() const;
    const QScrollArea& area() const { return *area_; }

  protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent*) override;
    void hideEvent(QHideEvent*) override;
    void paintEvent(QPaintEvent*) override;

  private:
    QScrollArea* area_;
    QWidget* closeKey_;
    QWidget* contents_;
    QWidget* head_;
    bool open_ = false;  // stays when only the window is hidden
    QPointer<QWidget> before_;
};

}  // namespace quorrin
