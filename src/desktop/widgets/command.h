// `Command`, the push button of every form: a skin from the strip, a hover look, an icon, a focus rectangle.
//
// The behaviour is that of CommandButtonModel; this draws it and tells it what the person does. Sizes are
// logical pixels; any device pixel ratio is drawn sharp. A button that was given no look of its own
// wears that of the theme. A caption that does not fit ends in an ellipsis. Enabled or not is the widget's
// own setEnabled.
#pragma once

#include <QIcon>
#include <QImage>
#include <QTimer>
#include <QWidget>
#include <functional>

#include "console/command_button_model.h"
#include "desktop/skin/skin_looks.h"

namespace quorrin {

class Command : public QWidget {
  public:
    // Dressed by the theme.
    explicit Command(QWidget* parent = nullptr);
    // As a form stores it; `icon` is the picture whose number the properties hold.
    explicit Command(const CommandButtonProperties& properties, const QIcon& icon = {},
                     QWidget* parent = nullptr);

    QString caption() const;
    void setCaption(const QString& caption);
    const QIcon& icon() const { return icon_; }
    void setIcon(const QIcon& icon);
    void setIconSize(QSize size);
    void setIconAlign(std::int32_t align);
    void setFontChoice(const FontChoice& font);

    // Which of the theme's looks to wear; the default is plain.
    void setLookKind(LookKind kind);
    // A look and a caption's colour of its own, whatever the theme.
    void setButtonLook(std::int32_t look);
    void setFontColor(Colour colour);
    std::int32_t look() const;
    QColor captionColour() const;

    // Presses and clicks, as a screen reader does.
    void press();

    // The events that forms use. A mouse-down is a press, a mouse-up a release; keys raise them too.
    std::function<void()> onClick;
    std::function<void()> onPress;
    std::function<void()> onRelease;
    std::function<void()> onDoubleClick;
    std::function<void()> onMouseOut;

    // All events with their arguments (but for those above, which this class has taken).
    CommandButtonModel& model() { return model_; }

    // Where the cursor is on the screen; QCursor::pos unless a test says otherwise.
    std::function<QPoint()> cursorPosition;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    void connectModel();
    void layOut();
    FaceSize captionSize() const;
    FaceSize iconFace() const;
    void drawFace(QPainter& painter) const;
    bool cursorInside() const;

    CommandButtonModel model_;
    QIcon icon_;
    QSize iconSize_;
    LookKind kind_ = LookKind::plain;
    bool ownLook_ = false;
    bool ownFontColor_ = false;
    bool pointerLeft_ = false;
    QTimer watch_;

    // The last skin that was put together.
    struct Drawn {
        ButtonState cell;
        std::int32_t look;
        QSize size;
        double ratio;
        bool operator==(const Drawn&) const = default;
    };
    Drawn drawn_{};
    QImage skin_;
};

}  // namespace quorrin
