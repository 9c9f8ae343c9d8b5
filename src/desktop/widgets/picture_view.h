// Shows a picture: one of the form's image list by number, or a file.
//
// A file that cannot be read at the moment leaves the picture that was there. A file is read when it is told
// anew and the view is to be seen. Numbers are drawn by the image list that the view was given; without one,
// and for number 0, nothing is drawn.
#pragma once

#include <QImage>
#include <QPainter>
#include <QString>
#include <QWidget>
#include <functional>

namespace quorrin {

// Draws the picture of that number into the square.
using ImageList = std::function<void(QPainter& painter, const QRect& square, int number)>;

class PictureView : public QWidget {
  public:
    enum class Fit { stretch, keepShape };

    explicit PictureView(ImageList images = {}, QWidget* parent = nullptr);

    void setFit(Fit fit);
    void setNumber(int number);
    int number() const { return number_; }
    // Reads the file, now or when the view is shown.
    void setFile(const QString& file);
    const QImage& image() const { return image_; }

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent*) override;
    void showEvent(QShowEvent*) override;

  private:
    void read();

    ImageList images_;
    Fit fit_ = Fit::keepShape;
    int number_ = 0;
    QString file_;
    bool unread_ = false;
    QImage image_;
};

}  // namespace quorrin
