// Makes the widget for a control of a form, bound and dressed: object name, accessible name, tool tip,
// shortcut, focus.
//
// One factory per form and window. The widgets have no parent yet: whoever asked puts them into a layout.
// They may outlive the factory. A name that the form does not have is a ProgramError.
#pragma once

#include <QScrollBar>
#include <QSlider>
#include <memory>
#include <string>

#include "base/controls.h"
#include "desktop/binding/bind.h"
#include "desktop/binding/focus_link.h"
#include "desktop/operator_acts.h"

namespace quorrin {

class ControlFactory {
  public:
    // `images` draws the pictures of the form's image list.
    ControlFactory(const OperatorActs& acts, Form& form, ImageList images = {});

    // The usual widget of the control's kind: QLineEdit, ShadowLabel, Command, QCheckBox, QRadioButton,
    // QSlider (lying), QComboBox, QListView, PictureView, Lamp, QGroupBox.
    QWidget* operator()(const std::string& controlName);

    // A kind of widget by choice, for a control of the right kind.
    QSlider* slider(const std::string& controlName, Qt::Orientation orientation);
    QScrollBar* scrollBar(const std::string& controlName, Qt::Orientation orientation);
    // A box that the operator reads and does not type into.
    QLineEdit* readOut(const std::string& controlName);

    // Dresses a widget that was bound by hand, or one that can take the focus only by now.
    void dress(QWidget& widget, Control& control);
    // Tab goes in the form's order of definition; to be called when all widgets are in their window.
    void orderTabs() const { focus_->orderTabs(); }

  private:
    Control& control(const std::string& name) const;
    QWidget* make(Control& control);
    void addShortcut(QWidget& widget, Control& dressed, const std::string& keys);

    OperatorActs acts_;
    Form& form_;
    ImageList images_;
    std::shared_ptr<FocusLink> focus_;
};

}  // namespace quorrin
