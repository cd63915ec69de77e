#include <cmath>
#include <cstdlib>
#include <cstring>

#include "core/NumberText.h"
#include "core/OneBased.h"
#include "fuzz/Fuzz.h"
#include "platform/RunTimeError.h"

using namespace penwright;

namespace {

/// The number of the error that a conversion raises, 0 for none.
template <typename Conversion>
int errorOf(const Conversion &conversion)
{
    try {
        static_cast<void>(conversion());
        return 0;
    } catch (const RunTimeError &error) {
        return error.number();
    }
}

template <typename Number>
void requireStable(Number number, Number (*read)(std::string_view))
{
    if (!std::isfinite(number))
        return;
    for (const std::string &text : {generalText(number), storeText(number)}) {
        if (!std::isfinite(std::strtod(text.c_str(), nullptr)))
            continue;  // the very largest is rounded up beyond its type, with as few digits as are written
        test::require(isNumeric(text), "what is written is a number");
        if (errorOf([&] { return read(text); }) == 0)
            test::require(generalText(read(text)) == generalText(number), "what is written reads as the same number");
    }
}

void requireAgreement(std::string_view text)
{
    const bool isNumber = isNumeric(text);
    test::require(errorOf([&] { return toDouble(text); }) == (isNumber ? 0 : 13),
                  "a number has a value, no other text");
    for (const int error : {errorOf([&] { return toSingle(text); }), errorOf([&] { return toInt16(text); }),
                            errorOf([&] { return toInt32(text); })})
        test::require(isNumber ? error == 0 || error == 6 : error == 13, "a number fits or overflows");
    if (isNumber)
        test::require(leadingNumber(text) == toDouble(text), "a number begins with itself");
    const int leading = errorOf([&] { return leadingNumber(text); });
    test::require(leading == 0 || leading == 6, "every text begins with a number or none");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view text = test::textOf(data, size);
    requireAgreement(text);
    if (size >= sizeof(double)) {
        double number = 0;
        std::memcpy(&number, data, sizeof number);
        requireStable<double>(number, &toDouble);
        float single = 0;
        std::memcpy(&single, data, sizeof single);
        requireStable<float>(single, &toSingle);
    }
    return 0;
}
