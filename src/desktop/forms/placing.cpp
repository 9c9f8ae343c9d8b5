#include "desktop/forms/placing.h"

#include <QAbstractButton>
#include <algorithm>

#include "console/control_words.h"
#include "desktop/binding/bind.h"
#include "desktop/theme/theme.h"
#include "desktop/widgets/command.h"
#include "desktop/widgets/icon_view.h"

namespace quorrin {

namespace {

constexpr int kEmptySide = 56;
constexpr int kCaptionDrop = 3;  // a caption's shadow reaches below it
constexpr int kEdges = 14;       // logical pixels beside the writing of a box

// A text with a shadow, in line with the boxes beside it.
QLayout* inLine(QWidget* text) {
    auto* const place = new QVBoxLayout;
    place->setContentsMargins(0, kCaptionDrop, 0, 0);
    place->addWidget(text);
    return place;
}

void close(QLayout& layout) {
    layout.setContentsMargins(0, 0, 0, 0);
    layout.setSpacing(currentTheme().gap + 1);
}

}  // namespace

void giveRoom(QWidget& widget, int characters) {
    widget.setMinimumWidth(widget.fontMetrics().horizontalAdvance(QString(characters, '0')) + kEdges);
}

void setKeyPicture(QWidget& key, IconName picture) {
    if (auto* command = dynamic_cast<Command*>(&key)) command->setIcon(writingIcon(picture));
    if (auto* button = dynamic_cast<QAbstractButton*>(&key)) button->setIcon(themedIcon(picture));
}

ShadowLabel* captionLabel(const QString& text) {
    ShadowLabelProperties properties;
    properties.caption = text.toStdString();
    properties.wordWrap = false;
    return new ShadowLabel(properties);
}

QWidget* Placing::control(const std::string& name, int characters) {
    QWidget* const made = make_(name);
    giveRoom(*made, characters);
    return made;
}

QWidget* Placing::readOut(const std::string& name, int characters) {
    QWidget* const made = make_.readOut(name);
    giveRoom(*made, characters);
    return made;
}

QWidget* Placing::note(const std::string& name) {
    auto& control = dynamic_cast<Label&>(*form_.find(name));
    auto* const made = new QLabel;
    made->setWordWrap(true);
    made->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    bind(*made, control, acts_);
    make_.dress(*made, control);
    return made;
}

QWidget* Placing::key(const std::string& name, IconName picture) {
    QWidget* const made = make_(name);
    setKeyPicture(*made, picture);
    return made;
}

QWidget* Placing::choice(const std::string& name) {
    QWidget* const made = make_(name);
    dynamic_cast<QAbstractButton&>(*made).setText(QString::fromStdString(fieldLabel(form_.name(), name)));
    return made;
}

QWidget* Placing::picture(const std::string& name, int least, IconName empty) {
    auto* const made = dynamic_cast<PictureView*>(make_(name));
    made->drawEmpty = [empty](QPainter& painter, const QRect& place) {
        QRect square(0, 0, kEmptySide, kEmptySide);
        square.moveCenter(place.center());
        drawIcon(painter, square, empty, currentTheme().outline);
    };
    made->setMinimumSize(least * 4 / 3, least);
    made->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    made->setBackgroundRole(QPalette::Base);
    made->setAutoFillBackground(true);
    return made;
}

QWidget* Placing::icon(const std::string& name, IconName picture, int side) {
    auto& control = dynamic_cast<Picture&>(*form_.find(name));
    auto* const made = new IconView(picture, side);
    bind(*made, control, acts_);
    make_.dress(*made, control);
    return made;
}

QWidget* Placing::caption(const std::string& name) {
    return captionLabel(QString::fromStdString(fieldLabel(form_.name(), name)));
}

QWidget* Placing::captioned(QGridLayout& grid, int row, int column, const std::string& name, int characters) {
    QWidget* const made = characters > 0 ? control(name, characters) : control(name);
    captioned(grid, row, column, name, made);
    return made;
}

void Placing::captioned(QGridLayout& grid, int row, int column, const std::string& name, QWidget* made) {
    grid.addLayout(inLine(caption(name)), row, column, Qt::AlignLeft | Qt::AlignVCenter);
    if (dynamic_cast<ShadowLabel*>(made) != nullptr) {
        grid.addLayout(inLine(made), row, column + 1, Qt::AlignVCenter);
    } else {
        grid.addWidget(made, row, column + 1);
    }
}

QWidget* Placing::suffix(const std::string& name) {
    return captionLabel(QString::fromStdString(fieldSuffix(form_.name(), name)));
}

QGridLayout* Placing::table(const std::vector<std::string>& names, int columns, int characters) {
    QGridLayout* const made = grid();
    int place = 0;
    for (const std::string& name : names) {
        captioned(*made, place / columns, 2 * (place % columns), name, characters);
        ++place;
    }
    // Neighbouring pairs stand apart, and what room is left over goes below.
    for (int i = 1; i < columns; ++i) made->setColumnMinimumWidth(2 * i, 0);
    made->setHorizontalSpacing(currentTheme().space);
    made->setRowStretch(made->rowCount(), 1);
    return made;
}

Group* group(const std::string& name, QLayout* contents) {
    auto* made = new Group(QString::fromStdString(name), QString::fromStdString(frameTitle(name)));
    made->setContents(contents);
    return made;
}

namespace {

void collect(const QWidget& parent, std::vector<QWidget*>& reached) {
    std::vector<QWidget*> children;
    for (QObject* child : parent.children())
        if (auto* widget = qobject_cast<QWidget*>(child); widget != nullptr && !widget->isWindow())
            children.push_back(widget);
    // Of two that overlap in height the left one comes first.
    std::stable_sort(children.begin(), children.end(), [](const QWidget* a, const QWidget* b) {
        if (a->geometry().bottom() < b->geometry().top()) return true;
        if (b->geometry().bottom() < a->geometry().top()) return false;
        return a->x() < b->x();
    });
    for (QWidget* child : children) {
        if ((child->focusPolicy() & Qt::TabFocus) != 0) reached.push_back(child);
        collect(*child, reached);
    }
}

}  // namespace

void orderTabsByReading(QWidget& root) {
    std::vector<QWidget*> reached;
    collect(root, reached);
    for (std::size_t i = 1; i < reached.size(); ++i) QWidget::setTabOrder(reached[i - 1], reached[i]);
}

QGridLayout* grid() {
    auto* made = new QGridLayout;
    close(*made);
    return made;
}

QHBoxLayout* row(std::initializer_list<QWidget*> widgets) {
    auto* made = new QHBoxLayout;
    close(*made);
    for (QWidget* widget : widgets) made->addWidget(widget);
    return made;
}

QVBoxLayout* column(std::initializer_list<QWidget*> widgets) {
    auto* made = new QVBoxLayout;
    close(*made);
    for (QWidget* widget : widgets) made->addWidget(widget);
    return made;
}

}  // namespace quorrin
