// Helpers for the windows that place many controls: a control with its caption, room for what it will show,
// rows and titled groups.
//
// Widgets come from the form's ControlFactory, texts from the console; nothing is decided here but distances.
// What is made belongs to the layout that it is put into.
#pragma once

#include <QGridLayout>
#include <QHBoxLayout>
#include <QString>
#include <QVBoxLayout>
#include <QWidget>
#include <initializer_list>
#include <string>
#include <vector>

#include "desktop/binding/control_factory.h"
#include "desktop/theme/icons.h"
#include "desktop/widgets/group.h"
#include "desktop/widgets/shadow_label.h"

namespace quorrin {

class Placing {
  public:
    Placing(ControlFactory& make, Form& form, const OperatorActs& acts)
        : make_(make), form_(form), acts_(acts) {}

    ControlFactory& factory() { return make_; }
    const Form& form() const { return form_; }
    const OperatorActs& acts() const { return acts_; }

    QWidget* control(const std::string& name) { return make_(name); }
    // A control with room for that many characters.
    QWidget* control(const std::string& name, int characters);
    QWidget* readOut(const std::string& name, int characters);
    // A label for whole sentences, on as many lines as they need; it asks for no width and, empty, for no
    // height.
    QWidget* note(const std::string& name);
    // A check box or option button that carries no caption of its own.
    QWidget* choice(const std::string& name);
    // A place for a picture, with a ground of its own, that takes what room there is; the icon stands in it
    // until there is a picture.
    QWidget* picture(const std::string& name, int least, IconName empty);
    // A picture of the form that is always the same icon.
    QWidget* icon(const std::string& name, IconName picture, int side);
    // A button with a picture beside its caption.
    QWidget* key(const std::string& name, IconName picture);

    // What stands beside the control, and the control itself, in two columns of the grid. Without
    // characters the control has the room that it asks for.
    QWidget* captioned(QGridLayout& grid, int row, int column, const std::string& name, int characters = 0);
    void captioned(QGridLayout& grid, int row, int column, const std::string& name, QWidget* control);
    QWidget* caption(const std::string& name);
    // What stands behind it.
    QWidget* suffix(const std::string& name);

    // Captioned controls under one another in `columns` pairs of columns, filled row by row.
    QGridLayout* table(const std::vector<std::string>& names, int columns, int characters);

  private:
    ControlFactory& make_;
    Form& form_;
    OperatorActs acts_;
};

// A text on the form, on one line.
ShadowLabel* captionLabel(const QString& text);
void setKeyPicture(QWidget& key, IconName picture);

// Room for the characters, as wide as figures, and for the widget's edges.
void giveRoom(QWidget& widget, int characters);

// The group of that name, with its title.
Group* group(const std::string& name, QLayout* contents);

// Tab goes through the widgets below as one reads: from above, then from the left, group by group.
void orderTabsByReading(QWidget& root);

QGridLayout* grid();
QHBoxLayout* row(std::initializer_list<QWidget*> widgets);
QVBoxLayout* column(std::initializer_list<QWidget*> widgets);

}  // namespace quorrin
