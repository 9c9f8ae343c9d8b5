// A titled part of the client's window: a card with room for its contents. One that takes the focus shows a
// ring while it has it.
#pragma once

#include <QVBoxLayout>
#include <QWidget>

#include "client/client_words.h"

namespace quorrin {

class Card : public QWidget {
  public:
    // Its title is the control's caption.
    explicit Card(ClientControl control, QWidget* parent = nullptr);

    QVBoxLayout& column() { return *column_; }

  protected:
    void paintEvent(QPaintEvent*) override;
    void focusInEvent(QFocusEvent*) override { update(); }
    void focusOutEvent(QFocusEvent*) override { update(); }

  private:
    QVBoxLayout* column_;
};

QString inQt(const std::string& text);
// Object name, accessible name, tool tip and shortcut of a control; the shortcut where it can have one.
void dress(QWidget& widget, ClientControl control);

}  // namespace quorrin
