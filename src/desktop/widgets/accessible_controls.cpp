#include "desktop/widgets/accessible_controls.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "desktop/widgets/command.h"
#include "desktop/widgets/shadow_label.h"

namespace quorrin {

namespace {

class AccessibleCommand : public QAccessibleWidget {
  public:
    explicit AccessibleCommand(Command& command)
        : QAccessibleWidget(&command, QAccessible::Button), command_(command) {}

    QString text(QAccessible::Text which) const override {
        const QString told = QAccessibleWidget::text(which);
        return which == QAccessible::Name && told.isEmpty() ? command_.caption() : told;
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (command_.isEnabled()) names.prepend(pressAction());
        return names;
    }

    void doAction(const QString& name) override {
        if (name == pressAction()) {
            command_.press();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.pressed = command_.model().pressState() == 1;
        return state;
    }

  private:
    Command& command_;
};

class AccessibleShadowLabel : public QAccessibleWidget {
  public:
    explicit AccessibleShadowLabel(ShadowLabel& label)
        : QAccessibleWidget(&label, QAccessible::StaticText), label_(label) {}

    QString text(QAccessible::Text which) const override {
        const QString told = QAccessibleWidget::text(which);
        return which == QAccessible::Name && told.isEmpty() ? label_.caption() : told;
    }

  private:
    ShadowLabel& label_;
};

QAccessibleInterface* describe(const QString&, QObject* object) {
    if (auto* command = dynamic_cast<Command*>(object)) return new AccessibleCommand(*command);
    if (auto* label = dynamic_cast<ShadowLabel*>(object)) return new AccessibleShadowLabel(*label);
    return nullptr;
}

}  // namespace

void announceAccessibleControls() {
    QAccessible::installFactory(describe);
}

void announceNewName(QWidget& control) {
    if (!QAccessible::isActive()) return;
    QAccessibleEvent event(&control, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

}  // namespace quorrin
