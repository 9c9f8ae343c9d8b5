// What a form stores of a control: values under the names of the control's properties.
//
// A control reads it at its creation and writes it when its form is saved. A property that is not in the bag,
// or of another kind there, reads as its default; one that has its default is not written, so that a
// stored form tells only what somebody has chosen. Owned by whoever stores the form.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <variant>

namespace quorrin {

// A font as a form stores it. Without a family it is the ambient one: that of the window around.
struct FontChoice {
    std::string family;
    double points = 0;
    bool bold = false;
    bool italic = false;

    bool ambient() const { return family.empty(); }
    bool operator==(const FontChoice&) const = default;
};

class PropertyBag {
  public:
    template <typename T>
    T read(const std::string& name, const T& byDefault) const {
        const auto found = values_.find(name);
        if (found == values_.end()) return byDefault;
        const T* value = std::get_if<T>(&found->second);
        return value ? *value : byDefault;
    }

    template <typename T>
    void write(const std::string& name, const T& value, const T& byDefault) {
        if (value == byDefault) {
            values_.erase(name);
        } else {
            values_[name] = value;
        }
    }

    bool has(const std::string& name) const { return values_.count(name) != 0; }
    std::size_t size() const { return values_.size(); }

  private:
    std::map<std::string, std::variant<std::string, bool, std::int32_t, FontChoice>> values_;
};

// For a control's list of properties, which is the same for reading and for writing.
struct FromBag {
    const PropertyBag& bag;

    template <typename T>
    void operator()(const char* name, T& value, const T& byDefault) const {
        value = bag.read(name, byDefault);
    }
};

struct IntoBag {
    PropertyBag& bag;

    template <typename T>
    void operator()(const char* name, const T& value, const T& byDefault) const {
        bag.write(name, value, byDefault);
    }
};

}  // namespace quorrin
