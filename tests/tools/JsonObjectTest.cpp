#include "ventrix-cli/JsonObject.h"

#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>

using ventrix::cli::JsonObject;

TEST(JsonObject, QuotesStringsAsJsonRequires)
{
    struct Case {
        std::string in;
        std::string out;
    };
    const Case cases[] = {
        { "V AC", "\"V AC\"" }, { "", "\"\"" }, { "say \"hi\" \\ there", "\"say \\\"hi\\\" \\\\ there\"" },
        { "a\nb\tc\rd\be\ff", "\"a\\nb\\tc\\rd\\be\\ff\"" },
        { std::string("\x01\x1f", 2), "\"\\u0001\\u001f\"" },
        { std::string("nul\0in", 6), "\"nul\\u0000in\"" }, { "\x7f", "\"\x7f\"" },
        { "\xC2\xB0"
          "C",
            "\"\xC2\xB0"
            "C\"" }, // degree sign passes through
        { "\xE2\x82\xAC \xF0\x9F\x98\x80", "\"\xE2\x82\xAC \xF0\x9F\x98\x80\"" }, // 3- and 4-byte
        { "\xB0"
          "C",
            "\"\xEF\xBF\xBD"
            "C\"" }, // a lone Latin-1 byte
        { "\xC2", "\"\xEF\xBF\xBD\"" }, // cut-off sequence
        { "\xC0\xAF", "\"\xEF\xBF\xBD\xEF\xBF\xBD\"" }, // overlong form
        { "\xED\xA0\x80", "\"\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\"" }, // surrogate
    };
    for (const Case& c : cases)
        EXPECT_EQ(JsonObject::Quote(c.in), c.out);
}

TEST(JsonObject, NumbersAreShortestAndReadBackExactly)
{
    EXPECT_EQ(JsonObject::Number(4000), "4000");
    EXPECT_EQ(JsonObject::Number(0.1), "0.1");
    EXPECT_EQ(JsonObject::Number(-12.5), "-12.5");
    EXPECT_EQ(JsonObject::Number(0), "0");
    EXPECT_EQ(JsonObject::Number(-0.0), "0");
    EXPECT_EQ(JsonObject::Number(std::nan("")), "null");
    EXPECT_EQ(JsonObject::Number(std::numeric_limits<double>::infinity()), "null");
    for (double value : { 1e-9, 1e-6, 1e-3, 1.0, 1e3, 1e6, 10000.0, 0.3, 1234.5678, 1.0 / 3 }) {
        const std::string text = JsonObject::Number(value);
        EXPECT_EQ(std::strtod(text.c_str(), nullptr), value) << text;
        EXPECT_EQ(text.find_first_not_of("0123456789.e+-"), std::string::npos) << text;
    }
}
