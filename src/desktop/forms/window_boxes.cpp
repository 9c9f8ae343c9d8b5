#include "desktop/forms/window_boxes.h"

#include <QApplication>
#include <QMessageBox>
#include <utility>

#include "console/crash_report.h"

namespace quorrin {

WindowBoxes::WindowBoxes(Clock& clock, std::function<void()> afterwards)
    : clock_(clock), afterwards_(std::move(afterwards)) {}

BoxAnswer WindowBoxes::show(const std::string& text, const std::string& title, BoxButtons buttons) {
    clock_.armNested();
    const BoxAnswer answer = PlainBoxes().show(text, title, buttons);
    if (afterwards_) afterwards_();
    return answer;
}

BoxAnswer PlainBoxes::show(const std::string& text, const std::string& title, BoxButtons buttons) {
    const bool asks = buttons == BoxButtons::yesNo;
    QMessageBox box(asks ? QMessageBox::Question : QMessageBox::Warning,
                    QString::fromStdString(title.empty() ? stationTitle() : title),
                    QString::fromStdString(text), asks ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setObjectName(QStringLiteral("messageBox"));
    box.setEscapeButton(asks ? QMessageBox::No : QMessageBox::Ok);
    const int pressed = box.exec();
    if (!asks) return BoxAnswer::ok;
    return pressed == QMessageBox::Yes ? BoxAnswer::yes : BoxAnswer::no;
}

}  // namespace quorrin
