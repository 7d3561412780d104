#include "ventrix-cli/JsonObject.h"

#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>

using ventrix::cli::JsonObject;

TEST(JsonObject, QuotesStringsAsJsonRequires)
{
    const struct {
        std::string in;
        std::string out;
    } cases[] = {
        { "say \"hi\"\n", "\"say \\\"hi\\\"\\n\"" }, { std::string("\x01\0", 2), "\"\\u0001\\u0000\"" },
        { "23 °C", "\"23 °C\"" }, // UTF-8 passes through
        { std::string("\xB0") + "C", std::string("\"\xEF\xBF\xBD") + "C\"" }, // a lone Latin-1 byte
    };
    for (const auto& c : cases)
        EXPECT_EQ(JsonObject::Quote(c.in), c.out);
}

TEST(JsonObject, NumbersAreShortestAndReadBackExactly)
{
    EXPECT_EQ(JsonObject::Number(4000), "4000");
    EXPECT_EQ(JsonObject::Number(0.1), "0.1");
    EXPECT_EQ(JsonObject::Number(-12.5), "-12.5");
    EXPECT_EQ(JsonObject::Number(-0.0), "0");
    EXPECT_EQ(JsonObject::Number(std::nan("")), "null");
    EXPECT_EQ(JsonObject::Number(std::numeric_limits<double>::infinity()), "null");
    for (double value : { 1e-9, 1e-3, 1e6, 0.3, 1234.5678, 1.0 / 3 }) {
        const std::string text = JsonObject::Number(value);
        EXPECT_EQ(std::strtod(text.c_str(), nullptr), value) << text;
        EXPECT_EQ(text.find_first_not_of("0123456789.e+-"), std::string::npos) << text;
    }
}
