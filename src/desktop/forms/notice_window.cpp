#include "desktop/forms/notice_window.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "console/crash_report.h"
#include "desktop/theme/theme.h"

namespace quorrin {

NoticeWindow::NoticeWindow() : lines_(new QListWidget) {
    setObjectName(QStringLiteral("notices"));
    setWindowTitle(QString::fromStdString(complaintsTitle()));
    lines_->setWordWrap(true);
    lines_->setObjectName(QStringLiteral("noticesList"));
    lines_->setAccessibleName(windowTitle());
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(currentTheme().space);
    column->addWidget(lines_);
    auto* const close = new QPushButton(QString::fromStdString(closeComplaints()));
    close->setObjectName(QStringLiteral("noticesClose"));
    close->setAccessibleName(close->text());
    close->setShortcut(Qt::Key_Escape);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    column->addWidget(close, 0, Qt::AlignRight);
    resize(lines_->fontMetrics().averageCharWidth() * 70, lines_->fontMetrics().height() * 12);
}

void NoticeWindow::say(const std::string& line) {
    const QString text = QString::fromStdString(line);
    if (!lines_->findItems(text, Qt::MatchExactly | Qt::MatchCaseSensitive).isEmpty()) return;
    lines_->addItem(text);
    show();
}

}  // namespace quorrin
