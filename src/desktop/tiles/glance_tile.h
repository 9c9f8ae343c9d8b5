// One thing of the robot that is to be seen from afar: a block in the colour of its state with its picture
// and a sign of the state, beside it what it is, one big word, a detail, and the progress of a wait.
//
// A text that does not fit is written smaller, down to a limit, so that the tile stays where it
// is. It shows a Glance and decides nothing. The sign (tick, clock, "!", cross, none) says what the colour
// says.
#pragma once

#include <QString>
#include <QWidget>

#include "base/glance.h"
#include "desktop/theme/icons.h"
#include "desktop/theme/theme.h"

namespace quorrin {

class GlanceTile : public QWidget {
  public:
    // A slim one has room for a single line of detail.
    enum class Kind { slim, small, large };

    GlanceTile(Kind kind, IconName picture, const QString& caption, QWidget* parent = nullptr);

    void show(const Glance& glance);
    using QWidget::show;
    // The picture may tell the state too, as that of the mode does.
    void setPicture(IconName picture);
    const Glance& glance() const { return glance_; }
    const QString& caption() const { return caption_; }

    // False while a text is too long for the tile even at the smallest size.
    bool whole() const { return sizes_.whole; }

    static constexpr int kMargin = 6;  // logical pixels
    static constexpr int kProgressHeight = 5;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void changeEvent(QEvent* event) override;

  private:
    // Factors of the application's font; `scale` is how much larger than needed the tile is.
    struct Sizes {
        double scale = 1;
        double caption = 1;
        double word = 1;
        double detail = 1;
        bool whole = true;
    };

    void measure();
    QFont lineFont(double factor, bool bold) const;
    int blockWidth(double scale) const;
    int detailLines() const;
    QString word() const { return QString::fromStdString(glance_.word); }
    QString detail() const { return QString::fromStdString(glance_.detail); }
    void drawBlock(QPainter& painter, const ToneColours& tone) const;
    void drawLines(QPainter& painter, const ToneColours& tone) const;
    void drawProgress(QPainter& painter, const ToneColours& tone) const;

    Kind kind_;
    IconName picture_;
    QString caption_;
    Glance glance_;
    Sizes sizes_;
};

const ToneColours& toneColours(const Theme& theme, Tone tone);

}  // namespace quorrin
