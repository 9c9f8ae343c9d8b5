#include "replay/line_fields.h"

#include <nlohmann/json.hpp>

#include "replay/script_error.h"

namespace quorrin {

namespace {

using Json = nlohmann::json;

bool isWhole(const Json& value) {
    if (value.is_number_unsigned())
        return value.get<std::uint64_t>() <= static_cast<std::uint64_t>(INT64_MAX);
    return value.is_number_integer();
}

std::string quoted(const std::string& text) {
    return "\"" + text + "\"";
}

}  // namespace

void LineFields::fail(const std::string& reason) const {
    throw ScriptError{line_, reason};
}

bool LineFields::has(const std::string& key) const {
    return object_.contains(key);
}

bool LineFields::isText(const std::string& key) const {
    const auto found = object_.find(key);
    return found != object_.end() && found->is_string();
}

const Json& LineFields::take(const std::string& key) {
    const auto found = object_.find(key);
    if (found == object_.end()) fail("key " + quoted(key) + " is missing");
    used_.insert(key);
    return *found;
}

std::string LineFields::text(const std::string& key) {
    const Json& value = take(key);
    if (!value.is_string()) fail(quoted(key) + " must be a text");
    return value.get<std::string>();
}

std::vector<std::string> LineFields::texts(const std::string& key) {
    const Json& value = take(key);
    const std::string reason = quoted(key) + " must be a list of texts";
    if (!value.is_array()) fail(reason);
    std::vector<std::string> all;
    for (const Json& element : value) {
        if (!element.is_string()) fail(reason);
        all.push_back(element.get<std::string>());
    }
    return all;
}

std::int64_t LineFields::whole(const std::string& key) {
    const Json& value = take(key);
    if (!isWhole(value)) fail(quoted(key) + " must be a whole number");
    return value.get<std::int64_t>();
}

std::int64_t LineFields::wholeWithin(const std::string& key, std::int64_t minimum, std::int64_t maximum) {
    const std::int64_t value = whole(key);
    if (value < minimum || value > maximum)
        fail(quoted(key) + " must be from " + std::to_string(minimum) + " to " + std::to_string(maximum));
    return value;
}

std::vector<std::int64_t> LineFields::wholesWithin(const std::string& key, std::int64_t minimum,
                                                   std::int64_t maximum) {
    const Json& value = take(key);
    const std::string reason = quoted(key) + " must be a list of whole numbers from " +
                               std::to_string(minimum) + " to " + std::to_string(maximum);
    if (!value.is_array()) fail(reason);
    std::vector<std::int64_t> all;
    for (const Json& element : value) {
        if (!isWhole(element)) fail(reason);
        all.push_back(element.get<std::int64_t>());
        if (all.back() < minimum || all.back() > maximum) fail(reason);
    }
    return all;
}

LineFields LineFields::object(const std::string& key) {
    const Json& value = take(key);
    if (!value.is_object()) fail(quoted(key) + " must be an object");
    return {value, line_};
}

bool LineFields::boolean(const std::string& key) {
    const Json& value = take(key);
    if (!value.is_boolean()) fail(quoted(key) + " must be true or false");
    return value.get<bool>();
}

std::int16_t LineFields::fitInteger(const Json& value, const std::string& key) const {
    if (!isWhole(value)) fail("property " + quoted(key) + " must be a whole number");
    const auto number = value.get<std::int64_t>();
    if (number < INT16_MIN || number > INT16_MAX)
        fail("property " + quoted(key) + ": " + std::to_string(number) + " does not fit 16 bits");
    return static_cast<std::int16_t>(number);
}

std::int16_t LineFields::integer(const std::string& key) {
    return fitInteger(take(key), key);
}

std::array<std::int16_t, 4> LineFields::fourIntegers(const std::string& key) {
    const Json& value = take(key);
    std::array<std::int16_t, 4> all{};
    if (!value.is_array() || value.size() != all.size())
        fail("property " + quoted(key) + " must be a list of four whole numbers");
    for (std::size_t i = 0; i < all.size(); ++i) all[i] = fitInteger(value[i], key);
    return all;
}

ControlValue LineFields::controlValue(const std::string& key) {
    const Json& value = take(key);
    if (value.is_string()) return value.get<std::string>();
    if (value.is_boolean()) return value.get<bool>();
    if (isWhole(value)) return value.get<std::int64_t>();
    fail(quoted(key) + " must be a text, a whole number, or true or false");
}

std::string LineFields::unusedKeys() const {
    std::string all;
    for (const auto& [key, value] : object_.items()) {
        if (used_.count(key) == 0) all += (all.empty() ? ", unknown key " : ", ") + quoted(key);
    }
    return all;
}

void LineFields::expectAllUsed() const {
    for (const auto& [key, value] : object_.items()) {
        if (used_.count(key) == 0) fail("unknown key " + quoted(key));
    }
}

}  // namespace quorrin
