// The kinds of controls, as values with events.
//
// Change events run inside the write, and only when the value differs. set...() is the program's write,
// operator...() what a person does: the latter does nothing on a control that is not usable (disabled, or its
// form not shown), the former always works. A click called by the program runs the handler whatever the
// state.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "base/area.h"
#include "base/form.h"
#include "base/program_error.h"
#include "platform/timer_mm.h"

namespace quorrin {

// A colour as one number, red in the low byte, then green, then blue.
using Colour = std::int32_t;
constexpr Colour rgb(int red, int green, int blue) {
    return red + green * 256 + blue * 65536;
}

class Label : public Control {
  public:
    Label(Form& form, std::string name, std::string caption = "");
    const std::string& caption() const { return caption_; }
    void setCaption(std::string caption);
    std::string valueText() const override { return caption_; }
    // Does nothing on a label that is not clicked on.
    void operatorClick();
    std::function<void()> onChange;
    std::function<void()> onClick;

  private:
    std::string caption_;
};

// Which texts a person may finish in a box; a script or the program may write any text.
enum class Accepts { any, number, integer };

class TextBox : public Control {
  public:
    TextBox(Form& form, std::string name, std::string text = "", Accepts accepts = Accepts::any);
    const std::string& text() const { return text_; }
    void setText(std::string text);
    std::string valueText() const override { return text_; }
    Accepts accepts() const { return accepts_; }
    // Would a window let a person finish this text here?
    bool allows(const std::string& text) const;

    const std::string& tag() const { return tag_; }
    void setTag(std::string tag) { tag_ = std::move(tag); }
    Colour backColour() const { return back_; }
    void setBackColour(Colour colour);
    Colour foreColour() const { return fore_; }
    void setForeColour(Colour colour);
    // The whole text is marked, as on entering an address box.
    bool selected() const { return selected_; }
    void setSelected(bool selected);

    void operatorEdit(std::string text);
    void operatorKey(int key);

    std::function<void()> onChange;

  private:
    std::string text_;
    std::string tag_;
    Accepts accepts_;
    Colour back_ = rgb(255, 255, 255);
    Colour fore_ = rgb(0, 0, 0);
    bool selected_ = false;
};

class CommandButton : public Control {
  public:
    CommandButton(Form& form, std::string name, std::string caption = "");
    const std::string& caption() const { return caption_; }
    void setCaption(std::string caption);
    // Number of the button's picture in the form's image list; 0 is none.
    int picture() const { return picture_; }
    void setPicture(int picture);
    std::string valueText() const override { return caption_; }

    void click() {
        if (onClick) onClick();
    }
    void operatorClick();
    void operatorPress();
    void operatorRelease();

    std::function<void()> onClick;
    std::function<void()> onMouseDown;
    std::function<void()> onMouseUp;

  private:
    std::string caption_;
    int picture_ = 0;
    bool pressed_ = false;
};

class CheckBox : public Control {
  public:
    CheckBox(Form& form, std::string name, std::string caption = "", bool checked = false);
    bool checked() const { return checked_; }
    void setChecked(bool checked);
    const std::string& caption() const { return caption_; }
    std::string valueText() const override { return checked_ ? "1" : "0"; }
    void operatorSet(bool checked);
    std::function<void()> onChange;

  private:
    std::string caption_;
    bool checked_;
};

// One of a set of options; choosing it is the form's business (its handler clears the others).
class OptionButton : public Control {
  public:
    OptionButton(Form& form, std::string name, std::string caption = "", bool chosen = false);
    bool chosen() const { return chosen_; }
    void setChosen(bool chosen);
    const std::string& caption() const { return caption_; }
    std::string valueText() const override { return chosen_ ? "True" : "False"; }
    void operatorChoose();
    std::function<void()> onChange;

  private:
    std::string caption_;
    bool chosen_;
};

// A slider or scroll bar. A value outside its limits is brought to the nearer one.
class Slider : public Control {
  public:
    Slider(Form& form, std::string name, std::int32_t minimum, std::int32_t maximum, std::int32_t value);
    std::int32_t value() const { return value_; }
    void setValue(std::int32_t value);
    std::int32_t minimum() const { return minimum_; }
    std::int32_t maximum() const { return maximum_; }
    // A value that is outside the new limits follows them.
    void setRange(std::int32_t minimum, std::int32_t maximum);
    std::int32_t smallChange = 1;
    std::int32_t largeChange = 1;
    // Drawn from its maximum, at the top or the left, down to its minimum; otherwise the other way round.
    bool maximumFirst = false;
    std::string valueText() const override { return std::to_string(value_); }
    void operatorMove(std::int32_t value);
    std::function<void()> onChange;

  private:
    std::int32_t within(std::int32_t value) const;

    std::int32_t minimum_;
    std::int32_t maximum_;
    std::int32_t value_;
};

// A drop-down: a list of texts and the one that is chosen (-1: none).
class ComboBox : public Control {
  public:
    ComboBox(Form& form, std::string name);
    const std::vector<std::string>& items() const { return items_; }
    void addItem(std::string item);
    void clear();
    int index() const { return index_; }
    void setIndex(int index);
    std::string text() const;
    std::string valueText() const override { return text(); }
    // Chooses the entry of that text; a text that is not in the list changes nothing.
    void operatorChoose(const std::string& item);
    std::function<void()> onChange;
    // The operator has chosen an entry, be it the same one again.
    std::function<void()> onClick;

  private:
    std::vector<std::string> items_;
    int index_ = -1;
};

// A list of lines, each with a number of its own, of which one may be selected. It may be long: what a list
// shows is replaced as a whole by setLines(), and a view asks for the lines that it draws.
class ListBox : public Control {
  public:
    ListBox(Form& form, std::string name);
    std::size_t count() const { return lines_.size(); }
    // A line that is not there is a ProgramError.
    const std::string& line(std::size_t index) const { return at(index).first; }
    int itemData(std::size_t index) const { return at(index).second; }
    void add(std::string line, int itemData);
    void remove(std::size_t index);
    // These lines in place of all others, each with the number 0; none is selected then.
    void setLines(std::vector<std::string> lines);
    // The selected line, or -1. It goes with its line, and is nobody's when that is removed.
    int selected() const { return selected_; }
    // A line that is not there selects none.
    void select(int index);
    // Grows whenever lines come or go, and not when only the selection moves.
    std::int64_t revision() const { return revision_; }
    // The lines, joined by line feeds.
    std::string valueText() const override;

  private:
    using Line = std::pair<std::string, int>;
    const Line& at(std::size_t index) const;

    std::vector<Line> lines_;
    int selected_ = -1;
    std::int64_t revision_ = 0;
};

// A coloured lamp.
class Shape : public Control {
  public:
    Shape(Form& form, std::string name, Colour fill);
    Colour fill() const { return fill_; }
    void setFill(Colour fill);
    std::string valueText() const override { return std::to_string(fill_); }

  private:
    Colour fill_;
};

// A circle on a picture's drawing layer. Twips in the picture's own frame.
struct DrawnCircle {
    double x = 0;
    double y = 0;
    double radius = 0;
    Colour colour = 0;
    bool operator==(const DrawnCircle&) const = default;
};

// A picture: from the form's image list by number (0: none), or from a file by path. A view reads the file,
// but for one whose content stands here: a file that is written while it is looked at. What is drawn on it
// lies on a layer of its own and stays until it is cleared.
class Picture : public Control {
  public:
    Picture(Form& form, std::string name);
    int number() const { return number_; }
    void setNumber(int number);
    const std::string& file() const { return file_; }
    // The same file again means that it has changed: whoever shows it reads it again.
    void setFile(std::string file);
    // How often a file was named; a view reads it when this has grown, and not when it only draws anew.
    std::int64_t fileLoads() const { return fileLoads_; }
    // The whole content of the file where the program has read it, else null.
    const std::shared_ptr<const std::string>& content() const { return content_; }
    // The same file with the same content changes nothing.
    void setContent(std::string file, std::string content);
    // Neither number nor file.
    void clear();
    // How often the picture was told to draw itself anew.
    std::int64_t refreshes() const { return refreshes_; }
    void refresh();
    // The number, or the file where one was loaded.
    std::string valueText() const override;

    // Where it is in what holds it, for pictures whose place counts; told by a view, or by who loads it.
    const Area& area() const { return area_; }
    void setArea(const Area& area) { area_ = area; }
    // The program moves the picture, keeping its size.
    void moveTo(std::int32_t left, std::int32_t top);

    const std::vector<DrawnCircle>& drawing() const { return drawing_; }
    void clearDrawing();
    void drawCircle(const DrawnCircle& circle);

    // Keys, on a picture whose form listens to them. Not on their way up: what auto-repeat makes of a key
    // that is held.
    void operatorKeyDown(int key);
    void operatorKeyUp(int key);
    std::function<void(int key)> onKeyDown;
    std::function<void(int key)> onKeyUp;

  private:
    int number_ = 0;
    std::string file_;
    std::int64_t fileLoads_ = 0;
    std::shared_ptr<const std::string> content_;
    std::int64_t refreshes_ = 0;
    Area area_;
    std::vector<DrawnCircle> drawing_;
};

// A group of controls that is shown, hidden and moved as one.
class Frame : public Control {
  public:
    Frame(Form& form, std::string name, std::string caption = "");
    const std::string& caption() const { return caption_; }
    std::string valueText() const override { return caption_; }
    // Where it is in its form's window; told by a view.
    const Area& area() const { return area_; }
    void setArea(const Area& area) { area_ = area; }
    // The program moves the frame, keeping its size.
    void moveTo(std::int32_t left, std::int32_t top);

  private:
    std::string caption_;
    Area area_;
};

// A form's timer: periodic, found by name like any control.
class Timer : public Control {
  public:
    Timer(Form& form, std::string name, Clock& clock, std::int64_t intervalMs);
    bool running() const { return timer_.enabled(); }
    void setRunning(bool running) { timer_.setEnabled(running); }
    std::int64_t interval() const { return timer_.interval(); }
    void setInterval(std::int64_t intervalMs) { timer_.setInterval(intervalMs); }
    void setHandler(std::function<void()> handler) { timer_.setHandler(std::move(handler)); }
    std::string valueText() const override { return timer_.enabled() ? "True" : "False"; }

  private:
    TimerMM timer_;
};

// One key of a toolbar; its name is "toolbar.Key".
using ToolbarKey = CommandButton;

// `count` controls that share a name and differ by index, starting with `first`: name(first),
// name(first+1)...
template <typename T, std::size_t count>
class ControlArray {
  public:
    template <typename... Args>
    ControlArray(Form& form, const std::string& name, int first, const Args&... args) : first_(first) {
        for (std::size_t i = 0; i < count; ++i) {
            const int index = first + static_cast<int>(i);
            elements_[i] = std::make_unique<T>(form, name + "(" + std::to_string(index) + ")", args...);
        }
    }
    // An element that is not there is a ProgramError.
    T& operator()(int index) { return *elements_[place(index)]; }
    const T& operator()(int index) const { return *elements_[place(index)]; }
    int first() const { return first_; }
    int last() const { return first_ + static_cast<int>(count) - 1; }

  private:
    std::size_t place(int index) const {
        if (index < first() || index > last())
            throw ProgramError("no control element " + std::to_string(index));
        return static_cast<std::size_t>(index - first_);
    }

    int first_;
    std::array<std::unique_ptr<T>, count> elements_;
};

}  // namespace quorrin
