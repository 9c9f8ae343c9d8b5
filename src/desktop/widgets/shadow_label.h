// `ShadowLabel`, the caption of all forms: text with a soft drop shadow, readable on any background.
//
// It carries out the list of draws of its model; every property that is set is stored and drawn. Sizes
// are logical pixels. No input. Colours may be system colour references; they follow the window's
// palette. A background that was left at the system's button face shows what the label stands on.
#pragma once

#include <QImage>
#include <QWidget>
#include <optional>

#include "console/shadow_label_model.h"

class QTextLayout;

namespace quorrin {

class ShadowLabel : public QWidget {
  public:
    // With the name as caption, as a label that was just put on a form.
    explicit ShadowLabel(const QString& name = {}, QWidget* parent = nullptr);
    explicit ShadowLabel(const ShadowLabelProperties& properties, QWidget* parent = nullptr);

    const ShadowLabelProperties& properties() const { return properties_; }
    QString caption() const { return QString::fromStdString(properties_.caption); }
    void setCaption(const QString& caption);
    void setAlignment(std::int32_t alignment);
    void setAutosize(bool autosize);
    void setForeColor(Colour colour);
    void setBackColor(Colour colour);
    void setShadowColor(Colour colour);
    void setWordWrap(bool wrap);
    void setFontChoice(const FontChoice& font);

    // What system colour references stand for; those of the palette unless somebody has told others.
    void setSystemColours(SystemColours colours);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return properties_.wordWrap; }
    int heightForWidth(int width) const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void start();
    // Something that is seen has changed.
    void redraw();
    FaceSize measured(int width) const;
    int textFlags() const;
    LabelDrawing drawing() const;
    void layOut(QTextLayout& lines, int width) const;
    QImage drawnText(double devicePixelRatio) const;

    ShadowLabelProperties properties_;
    std::optional<SystemColours> colours_;
    // The last drawing; sixteen texts are costly, and windows paint often.
    QImage drawn_;
};

}  // namespace quorrin
