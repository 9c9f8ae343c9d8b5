// Shows a picture: one of the form's image list by number, a file, or the content of one.
//
// What cannot be read leaves the picture that was there. It is read when it is told anew and the view
// is to be seen. Numbers are drawn by the image list that the view was given; without one, and for number 0,
// nothing is drawn.
#pragma once

#include <QImage>
#include <QPainter>
#include <QString>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>

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
    void setFile(const QString& file);
    void setContent(std::shared_ptr<const std::string> content);
    // No picture but the numbered one.
    void clear();
    const QImage& image() const { return image_; }

    // What stands in the place of a picture that is not there yet.
    std::function<void(QPainter& painter, const QRect& place)> drawEmpty;

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent*) override;
    void showEvent(QShowEvent*) override;

  private:
    void readSoon();
    void read();

    ImageList images_;
    Fit fit_ = Fit::keepShape;
    int number_ = 0;
    QString file_;
    std::shared_ptr<const std::string> content_;
    bool unread_ = false;
    QImage image_;
};

}  // namespace quorrin
