#include "desktop/widgets/icon_view.h"

#include <QPainter>

#include "desktop/theme/theme.h"

namespace quorrin {

namespace {

struct Sign {
    IconName name = IconName::count;
    bool lively = false;  // something goes on
};

Sign signOf(int number) {
    switch (number) {
        case 1:
            return {IconName::call, true};
        case 3:
            return {IconName::callEnded, false};
        case 4:
            return {IconName::network, true};
        case 5:
            return {IconName::networkOff, false};
        case 6:
        case 9:
            return {IconName::soundOff, false};
        case 8:
            return {IconName::soundOut, true};
        case 11:
            return {IconName::soundIn, true};
        default:
            return {};
    }
}

}  // namespace

IconView::IconView(IconName name, int side) : name_(name), side_(side) {
    QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
}

void IconView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawIcon(painter, rect(), name_, currentTheme().accent);
}

ImageList stationImages() {
    return [](QPainter& painter, const QRect& square, int number) {
        const Sign sign = signOf(number);
        drawIcon(painter, square, sign.name, sign.lively ? currentTheme().good.text : currentTheme().muted);
    };
}

}  // namespace quorrin
