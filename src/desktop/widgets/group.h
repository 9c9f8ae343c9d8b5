// A titled group of the dashboard: a card with its frame's caption on top and room for its contents below.
//
// Its object name is the group's, "fra(13)". It draws only itself; the contents are the caller's layout.
#pragma once

#include <QLayout>
#include <QString>
#include <QWidget>

namespace quorrin {

class Group : public QWidget {
  public:
    // A group without a title has no line for one.
    Group(const QString& name, const QString& title, QWidget* parent = nullptr);

    // Takes the layout as the contents, below the title.
    void setContents(QLayout* contents);

  protected:
    void paintEvent(QPaintEvent*) override;
};

}  // namespace quorrin
