#include "desktop/forms/login_window.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

#include "console/control_words.h"
#include "console/menu_words.h"
#include "desktop/binding/form_link.h"
#include "desktop/forms/heading.h"
#include "desktop/theme/theme.h"

namespace quorrin {

LoginWindow::LoginWindow(frmLogin& form, const OperatorActs& acts)
    : QWidget(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowCloseButtonHint | Qt::WindowMinimizeButtonHint),
      form_(form),
      acts_(acts),
      controls_(acts, form),
      keys_(new KeyGate(*this, acts)) {
    setWindowTitle(QString::fromStdString(quorrin::windowTitle(form.name())));
    auto* const column = new QVBoxLayout(this);
    const int space = currentTheme().space;
    column->setContentsMargins(3 * space, 3 * space, 3 * space, 3 * space);
    column->setSpacing(2 * space);
    column->addWidget(new Heading(QString::fromStdString(quorrin::windowTitle("frmGUI"))));
    column->addWidget(addressRow());
    column->addWidget(portRow());
    column->addStretch();
    column->addWidget(keyRow());
    column->setSizeConstraint(QLayout::SetFixedSize);
    controls_.orderTabs();
    new FormLink(*this, form, acts);
}

QLabel* LoginWindow::caption(const std::string& control) {
    auto* const label = new QLabel(QString::fromStdString(fieldLabel(form_.name(), control)));
    return label;
}

QWidget* LoginWindow::addressRow() {
    auto* const group = new QWidget;
    auto* const column = new QVBoxLayout(group);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(currentTheme().gap);
    column->addWidget(caption("txt_ip(0)"));
    auto* const row = new QHBoxLayout;
    row->setSpacing(currentTheme().gap);
    for (int i = 0; i < 4; ++i) {
        if (i > 0) {
            QLineEdit* const dot = controls_.readOut(form_.txt_ipdot(i - 1).name());
            dot->setFrame(false);
            // Tab goes from field to field.
            dot->setFocusPolicy(Qt::ClickFocus);
            dot->setAlignment(Qt::AlignCenter);
            dot->setStyleSheet(QStringLiteral("background: transparent; border: none; padding: 0;"));
            // Two dots would fit, and the space that a box keeps beside its text.
            constexpr int kBeside = 4;
            dot->setFixedWidth(dot->fontMetrics().horizontalAdvance(QStringLiteral("..")) + kBeside);
            row->addWidget(dot);
        }
        auto* const field = static_cast<QLineEdit*>(controls_(form_.txt_ip(i).name()));
        field->setAlignment(Qt::AlignCenter);
        field->setMinimumWidth(field->fontMetrics().horizontalAdvance(QStringLiteral("0000000")));
        keys_->watch(*field);
        row->addWidget(field, 1);
    }
    column->addLayout(row);
    return group;
}

QWidget* LoginWindow::portRow() {
    auto* const group = new QWidget;
    auto* const column = new QVBoxLayout(group);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(currentTheme().gap);
    column->addWidget(caption("txtRobotPort"));
    auto* const port = static_cast<QLineEdit*>(controls_("txtRobotPort"));
    port->setMaximumWidth(port->fontMetrics().horizontalAdvance(QStringLiteral("0000000000000")));
    keys_->watch(*port);
    column->addWidget(port);
    return group;
}

QWidget* LoginWindow::keyRow() {
    auto* const group = new QWidget;
    auto* const row = new QHBoxLayout(group);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(currentTheme().space);
    row->addStretch();
    for (const char* name : {"cmdOK", "cmdCancel"}) {
        QWidget* const key = controls_(name);
        key->setMinimumWidth(key->fontMetrics().horizontalAdvance(QStringLiteral("0000000000000")));
        keys_->watch(*key);
        row->addWidget(key);
    }
    return group;
}

void LoginWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QWidget::keyPressEvent(event);
        return;
    }
    acts_.act([&form = form_, before = form_.focused()] {
        if (form.focused() == before) form.cmdOK.operatorClick();
    });
}

void LoginWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), currentTheme().window);
}

}  // namespace quorrin
