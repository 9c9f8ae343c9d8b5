// Collects complaints, a line each, in a window that does not hold the operator up. It comes up with a line
// that it has not shown before.
#pragma once

#include <QListWidget>
#include <QWidget>
#include <string>

namespace quorrin {

class NoticeWindow : public QWidget {
  public:
    NoticeWindow();

    void say(const std::string& line);
    int lineCount() const { return lines_->count(); }

  private:
    QListWidget* lines_;
};

}  // namespace quorrin
