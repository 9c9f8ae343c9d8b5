#include "base/controls.h"

#include <algorithm>
#include <cstddef>

#include "base/number_text.h"

namespace quorrin {

namespace {
void run(const std::function<void()>& handler) {
    if (handler) handler();
}
}  // namespace

Label::Label(Form& form, std::string name, std::string caption)
    : Control(form, std::move(name)), caption_(std::move(caption)) {}

void Label::setCaption(std::string caption) {
    if (caption == caption_) return;
    caption_ = std::move(caption);
    looks();
    run(onChange);
}

void Label::operatorClick() {
    if (!usable() || !onClick) return;
    acts(OperatorAct::Kind::click);
    onClick();
}

TextBox::TextBox(Form& form, std::string name, std::string text, Accepts accepts)
    : Control(form, std::move(name)), text_(std::move(text)), accepts_(accepts) {}

void TextBox::setText(std::string text) {
    if (text == text_) return;
    text_ = std::move(text);
    looks();
    run(onChange);
}

bool TextBox::allows(const std::string& text) const {
    switch (accepts_) {
        case Accepts::integer: {
            const auto whole = parseWhole(text);
            return whole && *whole >= -32768 && *whole <= 32767;
        }
        case Accepts::number:
            return parseNumber(text).has_value();
        case Accepts::any:
            break;
    }
    return true;
}

void TextBox::setBackColour(Colour colour) {
    if (back_ == colour) return;
    back_ = colour;
    looks();
}

void TextBox::setForeColour(Colour colour) {
    if (fore_ == colour) return;
    fore_ = colour;
    looks();
}

void TextBox::setSelected(bool selected) {
    if (selected_ == selected) return;
    selected_ = selected;
    looks();
}

void TextBox::operatorEdit(std::string text) {
    if (!usable()) return;
    acts(OperatorAct::Kind::set, text);
    setText(std::move(text));
}

void TextBox::operatorKey(int key) {
    if (!usable() || !onKeyPress) return;
    acts(OperatorAct::Kind::key, std::int64_t{key});
    onKeyPress(key);
}

CommandButton::CommandButton(Form& form, std::string name, std::string caption)
    : Control(form, std::move(name)), caption_(std::move(caption)) {}

void CommandButton::setCaption(std::string caption) {
    if (caption == caption_) return;
    caption_ = std::move(caption);
    looks();
}

void CommandButton::setPicture(int picture) {
    if (picture == picture_) return;
    picture_ = picture;
    looks();
}

void CommandButton::operatorClick() {
    if (!usable()) return;
    acts(OperatorAct::Kind::click);
    click();
}

void CommandButton::operatorPress() {
    if (!usable()) return;
    acts(OperatorAct::Kind::press);
    pressed_ = true;
    run(onMouseDown);
}

void CommandButton::operatorRelease() {
    // A button that was pressed hears of the release, whatever has happened to it since.
    if (!pressed_ && !usable()) return;
    acts(OperatorAct::Kind::release);
    pressed_ = false;
    run(onMouseUp);
}

CheckBox::CheckBox(Form& form, std::string name, std::string caption, bool checked)
    : Control(form, std::move(name)), caption_(std::move(caption)), checked_(checked) {}

void CheckBox::setChecked(bool checked) {
    if (checked == checked_) return;
    checked_ = checked;
    looks();
    run(onChange);
}

void CheckBox::operatorSet(bool checked) {
    if (!usable()) return;
    acts(OperatorAct::Kind::set, checked);
    setChecked(checked);
}

OptionButton::OptionButton(Form& form, std::string name, std::string caption, bool chosen)
    : Control(form, std::move(name)), caption_(std::move(caption)), chosen_(chosen) {}

void OptionButton::setChosen(bool chosen) {
    if (chosen == chosen_) return;
    chosen_ = chosen;
    looks();
    run(onChange);
}

void OptionButton::operatorChoose() {
    if (!usable()) return;
    acts(OperatorAct::Kind::click);
    setChosen(true);
}

Slider::Slider(Form& form, std::string name, std::int32_t minimum, std::int32_t maximum, std::int32_t value)
    : Control(form, std::move(name)), minimum_(minimum), maximum_(maximum), value_(within(value)) {}

std::int32_t Slider::within(std::int32_t value) const {
    return std::max(minimum_, std::min(maximum_, value));
}

void Slider::setValue(std::int32_t value) {
    value = within(value);
    if (value == value_) return;
    value_ = value;
    looks();
    run(onChange);
}

void Slider::setRange(std::int32_t minimum, std::int32_t maximum) {
    minimum_ = minimum;
    maximum_ = maximum;
    looks();
    setValue(value_);
}

void Slider::operatorMove(std::int32_t value) {
    if (!usable()) return;
    acts(OperatorAct::Kind::set, std::int64_t{value});
    setValue(value);
}

ComboBox::ComboBox(Form& form, std::string name) : Control(form, std::move(name)) {}

void ComboBox::addItem(std::string item) {
    items_.push_back(std::move(item));
    looks();
}

void ComboBox::clear() {
    items_.clear();
    index_ = -1;
    looks();
}

void ComboBox::setIndex(int index) {
    if (index == index_ || index < -1 || index >= static_cast<int>(items_.size())) return;
    index_ = index;
    looks();
    run(onChange);
}

std::string ComboBox::text() const {
    return index_ < 0 ? std::string() : items_[static_cast<std::size_t>(index_)];
}

void ComboBox::operatorChoose(const std::string& item) {
    if (!usable()) return;
    acts(OperatorAct::Kind::set, item);
    const auto found = std::find(items_.begin(), items_.end(), item);
    if (found == items_.end()) return;
    setIndex(static_cast<int>(found - items_.begin()));
    run(onClick);
}

ListBox::ListBox(Form& form, std::string name) : Control(form, std::move(name)) {}

void ListBox::add(std::string line, int itemData) {
    lines_.emplace_back(std::move(line), itemData);
    ++revision_;
    looks();
}

void ListBox::setLines(std::vector<std::string> lines) {
    lines_.clear();
    lines_.reserve(lines.size());
    for (std::string& line : lines) lines_.emplace_back(std::move(line), 0);
    selected_ = -1;
    ++revision_;
    looks();
}

void ListBox::select(int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= lines_.size()) index = -1;
    if (index == selected_) return;
    selected_ = index;
    looks();
}

const ListBox::Line& ListBox::at(std::size_t index) const {
    if (index >= lines_.size())
        throw ProgramError("list " + name() + " has no line " + std::to_string(index));
    return lines_[index];
}

void ListBox::remove(std::size_t index) {
    if (index >= lines_.size()) return;
    lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(index));
    const int removed = static_cast<int>(index);
    if (selected_ == removed) selected_ = -1;
    if (selected_ > removed) --selected_;
    ++revision_;
    looks();
}

std::string ListBox::valueText() const {
    std::string all;
    for (const auto& [line, data] : lines_) {
        if (!all.empty()) all += '\n';
        all += line;
    }
    return all;
}

Shape::Shape(Form& form, std::string name, Colour fill) : Control(form, std::move(name)), fill_(fill) {}

void Shape::setFill(Colour fill) {
    if (fill == fill_) return;
    fill_ = fill;
    looks();
}

Picture::Picture(Form& form, std::string name) : Control(form, std::move(name)) {}

void Picture::setNumber(int number) {
    if (number == number_) return;
    number_ = number;
    looks();
}

void Picture::setFile(std::string file) {
    file_ = std::move(file);
    ++fileLoads_;
    content_.reset();
    looks();
}

void Picture::setContent(std::string file, std::string content) {
    if (content_ && file == file_ && content == *content_) return;
    file_ = std::move(file);
    content_ = std::make_shared<const std::string>(std::move(content));
    looks();
}

void Picture::clear() {
    number_ = 0;
    file_.clear();
    content_.reset();
    looks();
}

void Picture::operatorKeyDown(int key) {
    if (!usable() || !onKeyDown) return;
    acts(OperatorAct::Kind::keyDown, std::int64_t{key});
    onKeyDown(key);
}

void Picture::operatorKeyUp(int key) {
    if (!usable() || !onKeyUp) return;
    acts(OperatorAct::Kind::keyUp, std::int64_t{key});
    onKeyUp(key);
}

void Picture::refresh() {
    ++refreshes_;
    looks();
}

void Picture::moveTo(std::int32_t left, std::int32_t top) {
    if (area_.left == left && area_.top == top) return;
    area_.left = left;
    area_.top = top;
    looks();
}

void Picture::clearDrawing() {
    if (drawing_.empty()) return;
    drawing_.clear();
    looks();
}

void Picture::drawCircle(const DrawnCircle& circle) {
    drawing_.push_back(circle);
    looks();
}

std::string Picture::valueText() const {
    return file_.empty() ? std::to_string(number_) : file_;
}

Frame::Frame(Form& form, std::string name, std::string caption)
    : Control(form, std::move(name)), caption_(std::move(caption)) {}

void Frame::moveTo(std::int32_t left, std::int32_t top) {
    area_.left = left;
    area_.top = top;
    looks();
}

Timer::Timer(Form& form, std::string name, Clock& clock, std::int64_t intervalMs)
    : Control(form, std::move(name)), timer_(clock) {
    timer_.setInterval(intervalMs);
    timer_.setName(form.name() + " " + this->name() + "_Timer");
}

}  // namespace quorrin
