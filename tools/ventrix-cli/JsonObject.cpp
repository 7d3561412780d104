#include "ventrix-cli/JsonObject.h"

#include <charconv>
#include <cmath>

namespace ventrix::cli {

namespace {

// Length of the valid UTF-8 sequence starting at text[i], or 0 when it is not one.
std::size_t Utf8Length(const std::string& text, std::size_t i)
{
    const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(text[k]); };
    const unsigned char lead = byte(i);
    std::size_t length = 0;
    unsigned minimum = 0;
    unsigned codePoint = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
        codePoint = lead & 0x1F;
        minimum = 0x80;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        codePoint = lead & 0x0F;
        minimum = 0x800;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        codePoint = lead & 0x07;
        minimum = 0x10000;
    } else {
        return 0;
    }
    if (i + length > text.size())
        return 0;
    for (std::size_t k = 1; k < length; ++k) {
        if ((byte(i + k) & 0xC0) != 0x80)
            return 0;
        codePoint = (codePoint << 6) | (byte(i + k) & 0x3F);
    }
    if (codePoint < minimum || codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint <= 0xDFFF))
        return 0;
    return length;
}

} // namespace

std::string JsonObject::Quote(const std::string& text)
{
    static const char kHex[] = "0123456789abcdef";
    std::string out = "\"";
    for (std::size_t i = 0; i < text.size();) {
        const unsigned char c = static_cast<unsigned char>(text[i]);
        if (c >= 0x80) {
            const std::size_t length = Utf8Length(text, i);
            if (length == 0) {
                out += "\xEF\xBF\xBD"; // U+FFFD
                ++i;
            } else {
                out.append(text, i, length);
                i += length;
            }
            continue;
        }
        switch (c) {
        case '"':
            out += "\\\"";
            break;
        case '\\':
            out += "\\\\";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\t':
            out += "\\t";
            break;
        case '\b':
            out += "\\b";
            break;
        case '\f':
            out += "\\f";
            break;
        default:
            if (c < 0x20) {
                out += "\\u00";
                out += kHex[c >> 4];
                out += kHex[c & 0x0F];
            } else {
                out += static_cast<char>(c);
            }
        }
        ++i;
    }
    return out + "\"";
}

std::string JsonObject::Number(double value)
{
    if (!std::isfinite(value))
        return "null";
    if (value == 0)
        return "0"; // also for -0, which JSON readers would keep apart for no use here
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::string(buffer, result.ptr);
}

JsonObject& JsonObject::AddRaw(const std::string& key, const std::string& json)
{
    if (!m_members.empty())
        m_members += ',';
    m_members += Quote(key);
    m_members += ':';
    m_members += json;
    return *this;
}

JsonObject& JsonObject::Add(const std::string& key, const std::string& value)
{
    return AddRaw(key, Quote(value));
}
JsonObject& JsonObject::Add(const std::string& key, double value)
{
    return AddRaw(key, Number(value));
}
JsonObject& JsonObject::Add(const std::string& key, bool value)
{
    return AddRaw(key, value ? "true" : "false");
}
JsonObject& JsonObject::Add(const std::string& key, const JsonObject& value)
{
    return AddRaw(key, value.Text());
}
JsonObject& JsonObject::AddNull(const std::string& key)
{
    return AddRaw(key, "null");
}

} // namespace ventrix::cli
