// A titled group of the dashboard: a card with its frame's caption on top and room for its contents below.
//
// Its object name is the group's, "fra(13)". It draws only itself; the contents are the caller's layout.
#pragma once

#include <QHBoxLayout>
#include <QString>
#include <QWidget>

namespace quorrin {

class Group : public QWidget {
  public:
    // A group without a title has no line for one.
    Group(const QString& name, const QString& title, QWidget* parent = nullptr);

    // Takes the layout as the contents, below the title.
    void setContents(QLayout* contents);
    // A small thing at the right-hand end of the title's line; not for a group without a title.
    void putBesideTitle(QWidget* widget);

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    QHBoxLayout* titleLine_ = nullptr;
};

}  // namespace quorrin
