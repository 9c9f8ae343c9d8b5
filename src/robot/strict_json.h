// JSON objects of which every key must be known: a misspelt key in a file is an error that names it.
//
// Not a parser; it walks what nlohmann::json has read. `where` is the place in the file for the messages
// ("boxes[2]"). Errors: SiteError, also for a missing key, a wrong type, a number that is not finite or lies
// outside its limits.
#pragma once

#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <vector>

#include "robot/geometry.h"
#include "robot/site_error.h"

namespace quorrin {

class StrictObject {
  public:
    StrictObject(const nlohmann::json& value, std::string where);

    const std::string& where() const { return where_; }
    bool has(const std::string& key) const;

    // A key that must be there; asking for it makes it known.
    const nlohmann::json& need(const std::string& key);
    // Null when it is not there.
    const nlohmann::json* find(const std::string& key);

    double number(const std::string& key, double low, double high);
    double numberOr(const std::string& key, double fallback, double low, double high);
    std::string text(const std::string& key);
    std::string textOr(const std::string& key, const std::string& fallback);
    bool boolOr(const std::string& key, bool fallback);
    Vec2 point(const std::string& key);
    std::vector<Vec2> points(const std::string& key, std::size_t atLeast);
    // The elements of an array of objects; none when the key is not there.
    std::vector<StrictObject> objects(const std::string& key);

    // To be called when all keys have been asked for.
    void finish() const;

    [[noreturn]] void fail(const std::string& message) const;

  private:
    Vec2 pointOf(const nlohmann::json& value, const std::string& key) const;

    const nlohmann::json* value_;
    std::string where_;
    std::set<std::string> known_;
};

// The text as JSON; `name` (a file's name, with a line perhaps) begins the message.
nlohmann::json parseJson(const std::string& text, const std::string& name);

}  // namespace quorrin
