#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "help/chm/Entities.h"
#include "help/chm/PlainText.h"
#include "help/chm/TextDecoding.h"

namespace penwright::chm {
namespace {

struct DecodingCase {
    std::string bytes;
    std::uint32_t lcid;
    std::string text;
};

class Decoding : public testing::TestWithParam<DecodingCase> {};

TEST_P(Decoding, takesUtf8ElseTheCodePageOfTheLanguage)
{
    EXPECT_EQ(decodedText(GetParam().bytes, GetParam().lcid), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Texts, Decoding,
                         testing::ValuesIn(std::vector<DecodingCase>{
                             {"plain", 0x409, "plain"},
                             {"\xEF\xBB\xBF"
                              "ä €",
                              0x419, "ä €"},
                             {"gr\xFC\xDF \x80 \x81", 0x407, "grüß € \xEF\xBF\xBD"},
                             {"\xB9\xE6\xB3", 0x415, "ąćł"},
                             {"\xF8\xE8", 0x405, "řč"},
                             {"\xF1\xE2\xE5\xF2 \x88", 0x419, "свет €"},
                             {"\xF1", 0x0C1A, "с"},
                             {"\xF0", 0x081A, "đ"},
                             // What only looks like UTF-8: too long a form, a half of a pair, beyond the last, cut off.
                             {"\xC0\xAF", 0x409, "À¯"},
                             {"\xED\xA0\x80", 0x409, "í\xC2\xA0€"},
                             {"\xF4\x90\x80\x80", 0x409, "ô\xEF\xBF\xBD€€"},
                             {"a\xC3", 0x409, "aÃ"},
                             {"\xF0\x9F\x92\xA1", 0x409, "💡"},
                         }));

TEST(Entities, becomeTheirCharacters)
{
    EXPECT_EQ(withoutEntities("a &amp; b &lt;&gt; &quot;&apos; 25&deg;&nbsp;C &#233;&#xE9;&#XE9; &euro;&ge; &yuml;"),
              "a & b <> \"' 25°\xC2\xA0"
              "C ééé €≥ ÿ");
}

TEST(Entities, whatIsNoneStays)
{
    for (const char *text : {"&", "a & b; c", "&nosuch;", "&#;", "&#x;", "&#12a;", "&amp", "&#0;", "R&D;"})
        EXPECT_EQ(withoutEntities(text), text);
    EXPECT_EQ(withoutEntities("&#1114112;&#xD800;"), "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(PlainPage, isWhatAReaderSees)
{
    const PlainPage page = plainPage(
        "<HTML><head><Title> A &amp;\n B </Title><style>p > a { x }</style><SCRIPT>if (a < b) "
        "x('</p>');</SCRIPT></head>\n"
        "<body><!-- <p>no</p> --><p>One<b>word</b> and&nbsp;2&lt;3</p><td>x</td><td>y</td><br/>end</body>");
    EXPECT_EQ(page.title, "A & B");
    EXPECT_EQ(page.text,
              "Oneword and\xC2\xA0"
              "2<3 x y end");
}

TEST(PlainPage, ofBrokenMarkupIsWhatStandsBeforeIt)
{
    EXPECT_EQ(plainPage("a <!-- b").text, "a");
    EXPECT_EQ(plainPage("a <script> b").text, "a");
    EXPECT_EQ(plainPage("a <b").text, "a");
    EXPECT_EQ(plainPage("<title>a").title, "a");
}

}  // namespace
}  // namespace penwright::chm
