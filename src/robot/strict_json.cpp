#include "robot/strict_json.h"

#include <cmath>
#include <utility>

namespace quorrin {

namespace {
constexpr double kFarthest_m = 1000.0;  // nothing of a site lies further out
}

StrictObject::StrictObject(const nlohmann::json& value, std::string where)
    : value_(&value), where_(std::move(where)) {
    if (!value.is_object()) fail("an object is expected");
}

void StrictObject::fail(const std::string& message) const {
    throw SiteError(where_ + ": " + message);
}

bool StrictObject::has(const std::string& key) const {
    return value_->contains(key);
}

const nlohmann::json* StrictObject::find(const std::string& key) {
    known_.insert(key);
    const auto place = value_->find(key);
    return place == value_->end() ? nullptr : &*place;
}

const nlohmann::json& StrictObject::need(const std::string& key) {
    const nlohmann::json* found = find(key);
    if (found == nullptr) fail("\"" + key + "\" is missing");
    return *found;
}

double StrictObject::number(const std::string& key, double low, double high) {
    const nlohmann::json& value = need(key);
    if (!value.is_number()) fail("\"" + key + "\" must be a number");
    const double number = value.get<double>();
    if (!std::isfinite(number) || number < low || number > high) fail("\"" + key + "\" is out of range");
    return number;
}

double StrictObject::numberOr(const std::string& key, double fallback, double low, double high) {
    return find(key) == nullptr ? fallback : number(key, low, high);
}

std::string StrictObject::text(const std::string& key) {
    const nlohmann::json& value = need(key);
    if (!value.is_string()) fail("\"" + key + "\" must be a text");
    return value.get<std::string>();
}

std::string StrictObject::textOr(const std::string& key, const std::string& fallback) {
    return find(key) == nullptr ? fallback : text(key);
}

bool StrictObject::boolOr(const std::string& key, bool fallback) {
    const nlohmann::json* value = find(key);
    if (value == nullptr) return fallback;
    if (!value->is_boolean()) fail("\"" + key + "\" must be true or false");
    return value->get<bool>();
}

Vec2 StrictObject::pointOf(const nlohmann::json& value, const std::string& key) const {
    if (!value.is_array() || value.size() != 2 || !value[0].is_number() || !value[1].is_number())
        fail("\"" + key + "\": a point is two numbers, [x, y]");
    const Vec2 point{value[0].get<double>(), value[1].get<double>()};
    if (!(std::abs(point.x) <= kFarthest_m && std::abs(point.y) <= kFarthest_m))
        fail("\"" + key + "\" is out of range");
    return point;
}

Vec2 StrictObject::point(const std::string& key) {
    return pointOf(need(key), key);
}

std::vector<Vec2> StrictObject::points(const std::string& key, std::size_t atLeast) {
    const nlohmann::json& value = need(key);
    if (!value.is_array() || value.size() < atLeast)
        fail("\"" + key + "\" needs a list of at least " + std::to_string(atLeast) + " points");
    std::vector<Vec2> result;
    for (const nlohmann::json& element : value) result.push_back(pointOf(element, key));
    return result;
}

std::vector<StrictObject> StrictObject::objects(const std::string& key) {
    std::vector<StrictObject> result;
    const nlohmann::json* list = find(key);
    if (list == nullptr) return result;
    if (!list->is_array()) fail("\"" + key + "\" must be a list");
    for (std::size_t i = 0; i < list->size(); ++i)
        result.emplace_back((*list)[i], where_ + ": " + key + "[" + std::to_string(i) + "]");
    return result;
}

void StrictObject::finish() const {
    for (const auto& item : value_->items())
        if (known_.count(item.key()) == 0) fail("unknown key \"" + item.key() + "\"");
}

nlohmann::json parseJson(const std::string& text, const std::string& name) {
    try {
        return nlohmann::json::parse(text);
    } catch (const nlohmann::json::exception& error) {
        throw SiteError(name + ": " + error.what());
    }
}

}  // namespace quorrin
