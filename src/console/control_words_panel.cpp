// The words of the control panel. No control has a shortcut: on the panel every key press is a driving key,
// and a key that is none runs the last action again.
#include "console/control_words_rows.h"

namespace quorrin {

WordsRows controlPanelWords() {
    return {
        {"scrGas", "", "Gas", "Speed, from 10000 for none to 0 for full gas."},
        {"scrBrake", "Brake:", "Brake", "Brake, from 10000 for released to 0 for full."},
        {"hscSteering", "", "Steering", "Steering, 5000 is straight ahead."},
        {"scrHeadUD", "", "Look up and down", "Height of the robot's look, 2000 is straight ahead."},
        {"hscHeadLR", "", "Look left and right", "Side of the robot's look, 2000 is straight ahead."},
        {"scrMouthUD", "", "Mouth", "Opening of the robot's mouth."},
        {"slbGasLevel", "", "Gas level", "The gas level in force: 10000 is none, 0 is full."},
        {"sldLR", "", "Side of the look", "Where the robot is told to look, left to right."},
        {"sldUD", "", "Height of the look", "Where the robot is told to look, up and down."},
        {"cmdGasUp", "Gas Up:", "Gas up", "Releases the brake and drives one step faster. Key: Up arrow."},
        {"cmdGasDown", "", "Gas down", "Drives one step slower. Key: Down arrow."},
        {"cmdBrake", "", "Stop", "No gas, full brake, straight ahead. Key: Space."},
        {"cmdTurnLeft", "Left:", "Turn left", "Steers to the left while it is held down. Key: Left arrow."},
        {"cmdTurnRight", "Right:", "Turn right",
         "Steers to the right while it is held down. Key: Right arrow."},
        {"cmdHeadUp", "Up:", "Look up", "Turns the look one step up. Key: Home."},
        {"cmdHeadDown", "", "Look down", "Turns the look one step down. Key: End."},
        {"cmdHeadLeft", "Left:", "Look left", "Turns the look one step to the left. Key: Delete."},
        {"cmdHeadRight", "Right:", "Look right", "Turns the look one step to the right. Key: Page Down."},
        {"cmdMouthUp", "Close:", "Close the mouth", "Takes one step from the mouth's scale."},
        {"cmdMouthDown", "Open:", "Open the mouth", "Adds one step to the mouth's scale."},
        {"cmdReset", "", "Look straight ahead", "Brings the look back to straight ahead. Key: Backspace."},
        {"cmdClose", "", "Close the panel", "Lets go of the robot and closes the panel."},
        {"Picture1", "", "Control panel", "Drag here to move the panel. Takes the driving keys."},
    };
}

}  // namespace quorrin
