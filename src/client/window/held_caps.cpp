#include "client/window/held_caps.h"

#include <algorithm>

#include "client/window/card.h"

namespace quorrin {

namespace {

IconName pictureOf(bool HeldKeys::*held) {
    if (held == &HeldKeys::forward) return IconName::arrowUp;
    if (held == &HeldKeys::brake) return IconName::arrowDown;
    if (held == &HeldKeys::left) return IconName::arrowLeft;
    if (held == &HeldKeys::right) return IconName::arrowRight;
    return IconName::count;
}

}  // namespace

KeyCap* HeldCaps::make(bool HeldKeys::*held) {
    const auto& all = heldKeyWords();
    const auto words =
        std::find_if(all.begin(), all.end(), [held](const HeldKeyWords& one) { return one.held == held; });
    auto* const cap = new KeyCap(inQt(words->cap), pictureOf(held), inQt(words->caption));
    cap->setObjectName(QStringLiteral("cap.") + inQt(words->cap));
    cap->setAccessibleName(inQt(words->name));
    cap->setToolTip(inQt(words->tip));
    QObject::connect(cap, &QAbstractButton::pressed, cap, [this, held] {
        mouse_.*held = true;
        if (onMouse) onMouse();
    });
    QObject::connect(cap, &QAbstractButton::released, cap, [this, held] {
        mouse_.*held = false;
        if (onMouse) onMouse();
    });
    caps_.push_back({held, cap});
    return cap;
}

void HeldCaps::light(const HeldKeys& keys) {
    for (const Cap& one : caps_) one.cap->setLit(keys.*one.held);
}

void HeldCaps::setEnabled(bool enabled) {
    for (const Cap& one : caps_) one.cap->setEnabled(enabled);
}

}  // namespace quorrin
