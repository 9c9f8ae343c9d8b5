#include <QKeyEvent>
#include <QSignalBlocker>
#include <algorithm>

#include "desktop/binding/bind.h"
#include "desktop/binding/binding.h"
#include "desktop/binding/window_colour.h"

namespace quorrin {

namespace {

class TextBinding : public Binding {
  public:
    TextBinding(QLineEdit& widget, TextBox& control, const OperatorActs& acts)
        : Binding(widget, control, acts), widget_(widget), control_(control) {
        connect(&widget, &QLineEdit::textEdited, this, [this](const QString& text) { edited(text); });
        connect(&widget, &QLineEdit::editingFinished, this, [this] { finished(); });
        widget.installEventFilter(this);
        start();
    }

  protected:
    void showValue() override {
        showText(QString::fromStdString(control_.text()));
        showColours();
        if (marked_ != control_.selected()) {
            marked_ = control_.selected();
            if (marked_) {
                widget_.selectAll();
            } else {
                widget_.deselect();
            }
        }
    }

    bool keepsOwnValue() const override { return unfinished_; }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::KeyPress) keyPressed(static_cast<const QKeyEvent&>(*event));
        return Binding::eventFilter(watched, event);
    }

  private:
    void showText(const QString& text) {
        if (widget_.text() == text) return;
        const int cursor = widget_.cursorPosition();
        const bool all = !widget_.text().isEmpty() && widget_.selectedText() == widget_.text();
        const QSignalBlocker quiet(widget_);
        widget_.setText(text);
        if (all && control_.selected()) {
            widget_.selectAll();
        } else if (widget_.hasFocus()) {
            widget_.setCursorPosition(std::min(cursor, static_cast<int>(text.size())));
        } else {
            widget_.setCursorPosition(0);
        }
    }

    // White is what the system's window looks like: it and the writing on it are the theme's. (A field that
    // is being typed into may be white with white letters.)
    void showColours() {
        const bool plain = control_.backColour() == rgb(255, 255, 255);
        const QString sheet = plain ? QString()
                                    : QStringLiteral("background-color: %1; color: %2;")
                                          .arg(windowColour(control_.backColour()).name(),
                                               windowColour(control_.foreColour()).name());
        if (widget_.styleSheet() != sheet) widget_.setStyleSheet(sheet);
    }

    void edited(const QString& text) {
        if (control_.accepts() == Accepts::any) {
            act([&control = control_, typed = text.toStdString()] { control.operatorEdit(typed); });
        } else {
            unfinished_ = true;
        }
    }

    void finished() {
        if (!unfinished_) return;
        unfinished_ = false;
        std::string typed = widget_.text().toStdString();
        if (control_.allows(typed)) {
            act([&control = control_, typed = std::move(typed)] { control.operatorEdit(typed); });
        } else {
            look();
        }
    }

    void keyPressed(const QKeyEvent& event) {
        constexpr int kBackspace = 8;
        constexpr int kEnter = 13;
        switch (event.key()) {
            case Qt::Key_Backspace:
                key(kBackspace);
                break;
            case Qt::Key_Return:
            case Qt::Key_Enter:
                key(kEnter);
                break;
            case Qt::Key_Escape:
                if (unfinished_) {
                    unfinished_ = false;
                    look();
                }
                break;
            default:
                break;
        }
    }

    void key(int number) {
        if (!control_.onKeyPress) return;
        act([&control = control_, number] { control.operatorKey(number); });
    }

    QLineEdit& widget_;
    TextBox& control_;
    bool marked_ = false;
    bool unfinished_ = false;
};

}  // namespace

void bind(QLineEdit& widget, TextBox& control, const OperatorActs& acts) {
    new TextBinding(widget, control, acts);
}

}  // namespace quorrin
