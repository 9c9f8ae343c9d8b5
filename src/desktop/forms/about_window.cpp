#include "desktop/forms/about_window.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "console/control_words.h"
#include "console/menu_words.h"
#include "desktop/binding/form_link.h"
#include "desktop/forms/heading.h"
#include "desktop/theme/theme.h"

namespace quorrin {

AboutWindow::AboutWindow(frmAbout& form, const OperatorActs& acts, const QStringList& makers)
    : QWidget(nullptr,
              Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      form_(form),
      controls_(acts, form) {
    setWindowTitle(QString::fromStdString(quorrin::windowTitle(form.name())));
    auto* const row = new QHBoxLayout(this);
    const int space = currentTheme().space;
    row->setContentsMargins(3 * space, 3 * space, 3 * space, 3 * space);
    row->setSpacing(3 * space);
    row->addWidget(aboutColumn(acts));
    row->addWidget(extension(makers), 1);
    row->setSizeConstraint(QLayout::SetFixedSize);
    controls_.orderTabs();
    moved_ = Listening(form.picExtend.onLook, [this] { slide(); });
    new FormLink(*this, form, acts);
    slide();
}

QWidget* AboutWindow::aboutColumn(const OperatorActs& acts) {
    auto* const group = new QWidget;
    auto* const column = new QVBoxLayout(group);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2 * currentTheme().space);
    column->addWidget(new Heading(QString::fromStdString(quorrin::windowTitle("frmGUI"))));
    column->addWidget(controls_("lblVersion"));
    auto* const link = new QPushButton;
    link->setFlat(true);
    link->setCursor(Qt::PointingHandCursor);
    bindLink(*link, form_.lblWWW, acts);
    controls_.dress(*link, form_.lblWWW);
    column->addWidget(link, 0, Qt::AlignLeft);
    column->addStretch();
    column->addWidget(controls_("cmdOK"), 0, Qt::AlignLeft);
    return group;
}

QWidget* AboutWindow::extension(const QStringList& makers) {
    opening_ = new QWidget;
    page_ = new QWidget(opening_);
    controls_.dress(*page_, form_.picExtend);
    auto* const column = new QVBoxLayout(page_);
    column->setContentsMargins(0, 0, 0, 0);
    auto* const list = new QLabel(makers.join('\n'));
    list->setTextFormat(Qt::PlainText);
    controls_.dress(*list, form_.picDesignTeam);
    column->addWidget(list);
    page_->adjustSize();
    constexpr int kRoomAbove = 12;  // the page comes to rest a little below the top
    opening_->setFixedSize(page_->size() + QSize(0, kRoomAbove));
    return opening_;
}

void AboutWindow::slide() {
    page_->move(0, form_.picExtend.area().top / kTwipsPerPixel);
}

}  // namespace quorrin
