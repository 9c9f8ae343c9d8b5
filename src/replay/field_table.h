// The names under which a watch finds the station's values, and how each prints.
//
// Whole numbers and doubles print as numbers, Booleans as true or false, texts as texts, arrays element by
// element from the table's first index. A value that does not exist at the moment (a task before it was
// built) prints null. Names that are bound to a value must not outlive it.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/checked_int.h"

namespace quorrin {

// Appends a value as JSON text.
using FieldPrinter = std::function<void(std::string& out)>;

void appendField(std::string& out, double value);
void appendField(std::string& out, float value);
void appendField(std::string& out, bool value);
void appendField(std::string& out, std::int16_t value);
void appendField(std::string& out, Integer value);
void appendField(std::string& out, Long value);
void appendField(std::string& out, Byte value);
void appendField(std::string& out, const std::string& value);

// [first], [first + 1], ... as a list.
template <typename List>
void appendList(std::string& out, const List& list, std::size_t first) {
    out += '[';
    for (std::size_t i = first; i < list.size(); ++i) {
        if (i > first) out += ", ";
        appendField(out, list[i]);
    }
    out += ']';
}

class FieldTable {
  public:
    template <typename T>
    void add(const std::string& name, const T& value) {
        fields_[name] = [&value](std::string& out) { appendField(out, value); };
    }
    template <typename List>
    void addList(const std::string& name, const List& list, std::size_t first) {
        fields_[name] = [&list, first](std::string& out) { appendList(out, list, first); };
    }
    void addPrinter(const std::string& name, FieldPrinter printer) { fields_[name] = std::move(printer); }

    // Null for a name that is not in the table.
    const FieldPrinter* find(std::string_view name) const {
        const auto found = fields_.find(name);
        return found == fields_.end() ? nullptr : &found->second;
    }
    std::vector<std::string> names() const;

  private:
    std::map<std::string, FieldPrinter, std::less<>> fields_;
};

}  // namespace quorrin
