// What is written for white paper, on a dark desktop.
#include "help/window/HelpColours.h"

#include <gtest/gtest.h>

namespace penwright::test {
namespace {

struct ColourRow {
    const char *written;
    const char *onBlack;
};

void PrintTo(const ColourRow &row, std::ostream *out)
{
    *out << row.written;
}

QPalette whiteOnBlack()
{
    QPalette palette(Qt::black);
    palette.setColor(QPalette::Base, Qt::black);
    palette.setColor(QPalette::Text, Qt::white);
    return palette;
}

class HelpColours : public testing::TestWithParam<ColourRow> {};

TEST_P(HelpColours, areTurnedOnADarkDesktopAlone)
{
    EXPECT_EQ(withColoursOf(whiteOnBlack(), GetParam().written).toStdString(), GetParam().onBlack);
    EXPECT_EQ(withColoursOf(QPalette(Qt::white), GetParam().written).toStdString(), GetParam().written);
}

INSTANTIATE_TEST_SUITE_P(Styles, HelpColours,
                         testing::Values(ColourRow{"p { color: black; }", "p { color: #ffffff; }"},
                                         ColourRow{"<body bgcolor=\"white\">", "<body bgcolor=\"#000000\">"},
                                         ColourRow{"td { border: 1px solid #fff }", "td { border: 1px solid #000000 }"},
                                         ColourRow{"p { background: rgb(255, 255, 255) url(x.png) }",
                                                   "p { background: #000000 url(x.png) }"},
                                         ColourRow{"p { background-color: RGB(0,0,0) }",
                                                   "p { background-color: #ffffff }"},
                                         ColourRow{"p { background: transparent }", "p { background: transparent }"},
                                         ColourRow{"p { text-align: left }", "p { text-align: left }"},
                                         ColourRow{"<p>a black cat</p>", "<p>a black cat</p>"}));

}  // namespace
}  // namespace penwright::test
