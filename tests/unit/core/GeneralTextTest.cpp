#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <random>

#include "core/NumberText.h"

namespace penwright {
namespace {

/// What C's "%G" makes of a number, negative zero aside.
std::string printed(double value, int digits)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.*G", digits, value == 0 ? 0.0 : value);
    return text;
}

TEST(GeneralText, singlesHaveSevenDigits)
{
    EXPECT_EQ(generalText(90.0F), "90");
    EXPECT_EQ(generalText(22.5F), "22.5");
    EXPECT_EQ(generalText(0.85F), "0.85");
    EXPECT_EQ(generalText(0.1F), "0.1");
    EXPECT_EQ(generalText(1000.0F), "1000");
    EXPECT_EQ(generalText(9999999.0F), "9999999");
    EXPECT_EQ(generalText(1e7F), "1E+07");
    EXPECT_EQ(generalText(0.0001F), "0.0001");
    EXPECT_EQ(generalText(0.00001F), "1E-05");
    EXPECT_EQ(generalText(-0.0F), "0");
    EXPECT_EQ(generalText(-1.0F), "-1");
}

TEST(GeneralText, doublesHaveFifteenDigits)
{
    EXPECT_EQ(generalText(static_cast<double>(12.3F)), "12.3000001907349");
    EXPECT_EQ(generalText(static_cast<double>(1234.5678F)), "1234.56774902344");
    EXPECT_EQ(generalText(1e15), "1E+15");
    EXPECT_EQ(generalText(999999999999999.0), "999999999999999");
    EXPECT_EQ(generalText(999999999999999.9), "1E+15");
    EXPECT_EQ(generalText(0.00009999999999999999), "0.0001");
    EXPECT_EQ(generalText(-0.0), "0");
}

TEST(GeneralText, isWhatCPrintsForValuesOfEveryKind)
{
    std::mt19937_64 random(20240314);
    const auto whole = [&random](std::uint64_t below) { return static_cast<double>(random() % below); };
    int checked = 0;
    const auto check = [&checked](double value) {
        if (!std::isfinite(value))
            return;
        ASSERT_EQ(generalText(value), printed(value, 15));
        const auto single = static_cast<float>(value);
        if (std::isfinite(single)) {
            ASSERT_EQ(generalText(single), printed(single, 7));
        }
        ++checked;
    };
    for (int i = 0; i < 40000; ++i) {
        check(std::bit_cast<double>(random()));
        check(static_cast<float>(std::exp(whole(4000) / 100 - 10)));
        check(whole(100000000) / 1000);
        check(-std::ldexp(whole(1000000), -static_cast<int>(random() % 30)));  // ties between two decimals
        const double power = std::pow(10, static_cast<int>(random() % 20) - 5);
        for (const double near : {power, std::nextafter(power, 0), std::nextafter(power, 1e300)})
            check(near);
    }
    EXPECT_GT(checked, 200000);
}

}  // namespace
}  // namespace penwright
