// What the controls of the forms are called: the words that a window puts beside, over and behind a control,
// and the key that reaches it. Texts only; what a control does is its form's business, and captions that are
// state ("Show Control") stay in the controls.
//
// A form is named as Form::name() has it, a control as Control::name(): "shpBatteryStatus(0)",
// "tbaMusic.Play". What is not known has no words: empty texts.
#pragma once

#include <string>

namespace quorrin {

struct ControlWords {
    std::string name;  // the accessible name
    std::string tip;   // the tool tip, a sentence or two
    std::string
        shortcut;  // key sequence such as "Ctrl+Q", "" for none: clicks a key, moves the focus elsewhere
};

const ControlWords& controlWords(const std::string& form, const std::string& control);

// The visible caption beside or on a control that carries none of its own; "" where it needs none.
const std::string& fieldLabel(const std::string& form, const std::string& control);
// What stands behind the control in the same line: "Days Image Data".
const std::string& fieldSuffix(const std::string& form, const std::string& control);

// The caption of a group, by the group's name ("fra(13)", "frmMotor", "fraSetting"); "" for a group without
// one.
const std::string& frameTitle(const std::string& group);
// The same for those who do not see it: a group without a caption has a name, too.
const std::string& frameName(const std::string& group);

// What the number of a picture says, for pictures that are a sign: pictureWord("imgNetwork", 4). "" for
// others.
const std::string& pictureWord(const std::string& control, int number);
// What stands on a key of the main form that has a picture and no caption: its name and what the picture
// says, "Mode: IDLE".
std::string pictureCaption(const std::string& control, int number);

}  // namespace quorrin
