#pragma once

#include <string>

namespace ventrix::cli {

// Builds one JSON object as text, members in the order added. Strings are UTF-8 and pass
// through unchanged except for the characters JSON must escape; a byte that is not part of
// valid UTF-8 becomes U+FFFD so the output stays valid. Numbers are written in their shortest
// form that reads back to the same double; NaN and infinities become null. Does not check for
// repeated keys.
class JsonObject {
public:
    JsonObject& Add(const std::string& key, const std::string& value);
    JsonObject& Add(const std::string& key, const char* value) { return Add(key, std::string(value)); }
    JsonObject& Add(const std::string& key, double value);
    JsonObject& Add(const std::string& key, int value) { return Add(key, static_cast<double>(value)); }
    JsonObject& Add(const std::string& key, bool value);
    JsonObject& Add(const std::string& key, const JsonObject& value);
    JsonObject& AddNull(const std::string& key);

    std::string Text() const { return "{" + m_members + "}"; }

    static std::string Quote(const std::string& text);
    static std::string Number(double value);

private:
    JsonObject& AddRaw(const std::string& key, const std::string& json);
    std::string m_members;
};

} // namespace ventrix::cli
