// Binds widgets to controls, one function for each kind. The binding belongs to the widget; see binding.h for
// its rules. These bind values, enabled and visible; names, tips, shortcuts and focus are the factory's.
#pragma once

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QRadioButton>
#include <functional>
#include <string>

#include "base/controls.h"
#include "desktop/operator_acts.h"
#include "desktop/widgets/command.h"
#include "desktop/widgets/lamp.h"
#include "desktop/widgets/picture_view.h"
#include "desktop/widgets/shadow_label.h"

namespace quorrin {

// A box that takes any text gives each edit on at once; one for numbers gives it on when the operator
// finishes it (Enter, or leaving the box), and takes a text that is not allowed, or that Escape ends, back.
void bind(QLineEdit& widget, TextBox& control, const OperatorActs& acts);
void bind(ShadowLabel& widget, Label& control, const OperatorActs& acts);
void bind(QLabel& widget, Label& control, const OperatorActs& acts);
// A label that is clicked on, as a link.
void bindLink(QAbstractButton& widget, Label& control, const OperatorActs& acts);
void bind(Command& widget, CommandButton& control, const OperatorActs& acts);
// A key without a caption of its own that says by its picture how things are: `words` are its caption.
void bind(Command& widget, CommandButton& control, const OperatorActs& acts,
          std::function<std::string(int picture)> words);
void bind(QAbstractButton& widget, CommandButton& control, const OperatorActs& acts);
void bind(QCheckBox& widget, CheckBox& control, const OperatorActs& acts);
void bind(QRadioButton& widget, OptionButton& control, const OperatorActs& acts);
void bind(QAbstractSlider& widget, Slider& control, const OperatorActs& acts);
void bind(QComboBox& widget, ComboBox& control, const OperatorActs& acts);
// Shows the lines and follows the selection; the operator selects nothing.
void bind(QListView& widget, ListBox& control, const OperatorActs& acts);
void bind(PictureView& widget, Picture& control, const OperatorActs& acts);
void bind(Lamp& widget, Shape& control, const OperatorActs& acts);
// Also tells the control where the frame is in its window.
void bind(QWidget& widget, Frame& control, const OperatorActs& acts);

}  // namespace quorrin
