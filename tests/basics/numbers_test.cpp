#include "basics/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zentrik {

namespace {

TEST(Numbers, RoundHalvesToEvenAndSaturate) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const std::pair<double, std::int32_t> cases[] = {{0.5, 0},
                                                     {1.5, 2},
                                                     {2.5, 2},
                                                     {-0.5, 0},
                                                     {-2.5, -2},
                                                     {1e10, 2147483647},
                                                     {-1e10, -2147483647 - 1},
                                                     {infinity, 2147483647},
                                                     {std::nan(""), 0}};
    for (const auto& [value, rounded] : cases) EXPECT_EQ(toInt(value), rounded) << value;
    EXPECT_EQ(toReal(1e300), std::numeric_limits<float>::max());
}

TEST(Numbers, ReadTheLongestLeadingNumber) {
    const std::pair<const char*, double> cases[] = {
        {"7.5abc", 7.5}, {"  -3 4", -3}, {"1e3x", 1000},
        {"1e", 1},       {"1e+", 1},     {".5", 0.5},
        {"5.", 5},       {"+2", 2},      {"-", 0},
        {"abc", 0},      {"inf", 0},     {"nan", 0},
        {"0x10", 0},     {"1,5", 1},     {"", 0},
        {"1e-999", 0},   {"--1", 0},     {"1e999", 1.7976931348623157e308}};
    for (const auto& [text, value] : cases) EXPECT_EQ(leadingNumber(text), value) << text;
}

TEST(Numbers, WriteShortDecimals) {
    const std::pair<float, const char*> reals[] = {
        {1, "1"},          {0.2F, "0.2"},   {-0.25F, "-0.25"},
        {1500, "1500"},    {1e7F, "1E+07"}, {123456.7F, "123456.7"},
        {1e-10F, "1E-10"}, {-0.F, "0"},     {16777216, "1.677722E+07"}};
    for (const auto& [value, text] : reals) EXPECT_EQ(realText(value), text);
    EXPECT_EQ(realText(0.1), "0.1");
    const std::pair<double, const char*> tenths[] = {
        {static_cast<double>(0.35F), "0.4"}, {0.25, "0.3"}, {-0.01, "0.0"}, {99.94, "99.9"}};
    for (const auto& [value, text] : tenths) EXPECT_EQ(fixedText(value, 1), text);
    EXPECT_EQ(clockText(1.24F), " 1.240");
    EXPECT_EQ(clockText(20000), " 20000.000") << "rounding halves must not lift a long clock";
    EXPECT_EQ(fixedText(-0.45, 1), "-0.5");
}

}  // namespace

}  // namespace zentrik
