#include "console/address_boxes.h"

#include <utility>

#include "base/number_text.h"
#include "base/rounding.h"
#include "console/plain_text.h"

namespace quorrin {

namespace {
constexpr int kLastBox = 3;
constexpr Colour kDarkBlue = rgb(0, 51, 153);
constexpr Colour kWhite = rgb(255, 255, 255);
constexpr Colour kBlack = rgb(0, 0, 0);
constexpr int kBackspace = 8;
constexpr int kEnter = 13;

// What stands before position `dot`; nothing when there is no dot. The rest loses field and dot, and stays
// whole without one.
std::string cutField(std::string& rest, std::string::size_type dot) {
    if (dot == std::string::npos) return "";
    std::string field = rest.substr(0, dot);
    rest = dot + 1 < rest.size() ? rest.substr(dot + 1) : std::string();
    return field;
}
}  // namespace

AddressBoxes::AddressBoxes(frmLogin& form) : form_(form) {
    for (int i = 0; i <= kLastBox; ++i) {
        TextBox& box = form_.txt_ip(i);
        box.onChange = [this, i] { changed(i); };
        box.onGotFocus = [this, i] { gotFocus(i); };
        box.onLostFocus = [this, i] { left(i); };
        box.onKeyPress = [this, i](int key) { keyPressed(i, key); };
    }
    for (int i = 0; i < kLastBox; ++i)
        form_.txt_ipdot(i).onGotFocus = [this, i] { focusBox(paddingChange_ ? i + 1 : i); };
}

void AddressBoxes::fill(const std::string& robotIp) {
    std::string rest = trimmed(robotIp);
    form_.txt_ip(0).setText(cutField(rest, rest.find('.')));
    form_.txt_ip(1).setText(cutField(rest, robotIp.find('.')));
    form_.txt_ip(2).setText(cutField(rest, rest.find('.')));
    form_.txt_ip(3).setText(rest);
}

void AddressBoxes::clear() {
    for (int i = 0; i <= kLastBox; ++i) {
        form_.txt_ip(i).setText("");
        form_.txt_ip(i).setTag("False");
    }
}

int AddressBoxes::firstInvalid() const {
    for (int i = 0; i <= kLastBox; ++i)
        if (form_.txt_ip(i).tag() == "False") return i;
    return -1;
}

void AddressBoxes::focusAndMark(int index) {
    focusBox(index);
    gotFocus(index);
}

std::string AddressBoxes::trimmedField(int index) const {
    return trimmed(form_.txt_ip(index).text());
}

std::string AddressBoxes::joined() const {
    std::string all = trimmedField(0);
    for (int i = 1; i <= kLastBox; ++i) all += "." + trimmedField(i);
    return all;
}

void AddressBoxes::setEnabled(bool enabled) {
    for (int i = 0; i <= kLastBox; ++i) form_.txt_ip(i).setEnabled(enabled);
}

void AddressBoxes::focusBox(int index) {
    form_.moveFocus(form_.txt_ip(index));
}

void AddressBoxes::changed(int index) {
    if (std::exchange(paddingChange_, false)) return;
    TextBox& box = form_.txt_ip(index);
    const std::string text = box.text();
    if (text.empty()) return;

    for (const char c : text)
        if ((c == '.' || c == ' ') && index < kLastBox) focusBox(index + 1);
    const std::string digits = digitsOf(text);
    box.setText(digits);
    if (digits.size() == 3 && index < kLastBox) focusBox(index + 1);

    const bool valid = parseNumber(digits).value_or(0) <= 255;
    box.setBackColour(valid ? kWhite : kDarkBlue);
    box.setTag(booleanText(valid));
}

void AddressBoxes::gotFocus(int index) {
    TextBox& box = form_.txt_ip(index);
    box.setBackColour(kDarkBlue);
    box.setForeColour(kWhite);
    box.setSelected(true);
    box.setText(leftTrimmed(box.text()));
    paddingChange_ = false;
}

void AddressBoxes::keyPressed(int index, int key) {
    if (key == kBackspace && index > 0 && form_.txt_ip(index).text().empty()) focusBox(index - 1);
    if (key == kEnter && index < kLastBox) focusBox(index + 1);
}

void AddressBoxes::left(int index) {
    TextBox& box = form_.txt_ip(index);
    paddingChange_ = true;
    if (!box.text().empty()) {
        const double value = leadingNumber(box.text());
        box.setText(value >= 256 ? "0" : formatShortest(roundHalfEven(value)));
        box.setBackColour(kWhite);
    } else {
        paddingChange_ = false;
        box.setTag("False");
        form_.stayFocused();
    }
    box.setForeColour(kBlack);
    box.setSelected(false);
    if (box.text().size() == 1) {
        box.setText("  " + box.text());
    } else if (box.text().size() == 2) {
        box.setText(" " + box.text());
    }
}

}  // namespace quorrin
