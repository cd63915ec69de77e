// Texts that are no table, or none that can be taken: what the dialog says of them, and that nothing else changes.
#include "widgets/PasteTableTest.h"

namespace penwright::test {
namespace {

struct NastyText {
    const char *name;
    std::string text;
    std::string said;      ///< "" for nothing
    bool isTaken = false;  ///< OK is possible
};

/// A line of a first cell and many others.
std::string lineOf(const std::string &first, int count, const std::string &cell)
{
    std::string line = first;
    for (int at = 0; at < count; ++at)
        line += '\t' + cell;
    return line + '\n';
}

/// 1,000 x 1,000 values, of which the last one is missing.
std::string millionWithASlip()
{
    std::string text;
    for (int line = 1; line < 1000; ++line)
        text += lineOf("1", 999, "1");
    return text + lineOf("1", 998, "1");
}

const std::vector<NastyText> kTexts{
    {"no text", "", "The clipboard holds no text. Copy a table, or take it from a file."},
    {"blanks", " \n\t\n \r\n",
     "No line of numbers was found; a table has one for each angle. 10 x 1 values needed (vertical x horizontal "
     "angles)."},
    {"one word", "table",
     "No line of numbers was found; a table has one for each angle. Line 1, cell 1: \"table\" is no number. 10 x 1 "
     "values needed (vertical x horizontal angles)."},
    {"a letter to a client", "Dear all,\nthe table follows.\n",
     "No line of numbers was found; a table has one for each angle. Line 1, cell 1: \"Dear all,\" is no number. 10 x 1 "
     "values needed (vertical x horizontal angles)."},
    {"HTML", "<table><tr><td>0</td><td>1</td></tr></table>",
     "No line of numbers was found; a table has one for each angle. Line 1, cell 1: "
     "\"<table><tr><td>0</td><td>1</td...\" is no number. 10 x 1 values needed (vertical x horizontal angles)."},
    {"code 0", std::string("0\t5\n45\t4\n90\t", 12) + '\0' + "\n",
     "The text has characters with the code 0: it is no table."},
    {"falling angles", "Gamma\tC0\n0\t5\n60\t4\n45\t3\n90\t0\n",
     "Line 4, cell 1: angle 45 stands behind 60; angles must rise. Read before it: 2 lines of 1 value."},
    {"falling planes", "Gamma\tC0\tC90\tC45\n0\t5\t5\t5\n90\t0\t0\t0\n",
     "Line 1, cell 4: angle 45 stands behind 90; angles must rise."},
    {"equal angles", "Gamma\tC0\n0\t5\n45\t4\n45\t3\n90\t0\n", "", true},
    {"angles from nowhere to nowhere", "Gamma\tC0\n7\t5\n8\t4\n9\t3\n",
     "The angles cannot be taken: Vertical angles must start at 0 or 90; Vertical angles must end at 90 or 180"},
    {"angles below zero", "Gamma\tC0\n-90\t5\n0\t4\n90\t3\n",
     "The angles cannot be taken: Vertical angles must start at 0 or 90"},
    {"radians", "Gamma\tC0\n0\t5\n0.7854\t4\n1.5708\t3\n",
     "The angles cannot be taken: Vertical angles must end at 90 or 180"},
    {"short line", "Gamma\tC0\tC90\n0\t5\t5\n45\t4\n90\t0\t0\n",
     "Line 3: 2 cells where the lines above have 3. Read before it: 1 line of 2 values."},
    {"long line", "Gamma\tC0\tC90\n0\t5\t5\n45\t4\t4\t4\n90\t0\t0\n",
     "Line 3: 4 cells where the lines above have 3. Read before it: 1 line of 2 values."},
    {"empty cell", "Gamma\tC0\tC90\n0\t5\t5\n45\t\t4\n90\t0\t0\n",
     "Line 3, cell 2: the cell is empty; a number belongs there. Read before it: 1 line of 2 values."},
    {"letter in a number", "Gamma\tC0\n0\t5\n45\t4O\n90\t0\n",
     "Line 3, cell 2: \"4O\" is no number. Read before it: 1 line of 1 value."},
    {"not a number", "Gamma\tC0\n0\tNaN\n45\t4\n90\t0\n", "Line 2, cell 2: \"NaN\" is no number."},
    {"infinity", "Gamma\tC0\n0\tinf\n45\t4\n90\t0\n", "Line 2, cell 2: \"inf\" is no number."},
    {"beyond the singles", "Gamma\tC0\n0\t1E+39\n45\t4\n90\t0\n", "Line 2, cell 2: \"1E+39\" is no number."},
    {"largest values", "Gamma\tC0\n0\t1E+38\n45\t1E+38\n90\t0\n", "", true},
    {"spreadsheet's fault", "Gamma\tC0\n0\t#REF!\n45\t4\n90\t0\n", "Line 2, cell 2: \"#REF!\" is no number."},
    {"percents", "Gamma\tC0\n0\t100%\n45\t80%\n90\t0%\n",
     "Line 2, cell 2: \"100%\" is no number. 10 x 1 values needed (vertical x horizontal angles)."},
    {"another unit", "Gamma\tC0\n0\t5 lx\n45\t4 lx\n90\t0 lx\n",
     "Line 2, cell 2: \"5 lx\" is no number: only cd or cd/klm may stand behind one. 10 x 1 values needed (vertical x "
     "horizontal angles)."},
    {"typographic minus",
     "Gamma\tC0\n0\t5\n45\t\xE2\x88\x92"
     "4\n90\t0\n",
     "At its Next page 5 will name 1 fault, first: value H:0 V:45 is less than zero.", true},
    {"two tables", "Gamma\tC0\n0\t5\n45\t4\n90\t0\n\nGamma\tC0\n0\t6\n45\t5\n90\t1\n",
     "Line 7, cell 1: another table begins here; copy one table alone. Read before it: 3 lines of 1 value."},
    {"numbers behind it", "Gamma\tC0\tC90\n0\t5\t5\n90\t0\t0\n2024\n",
     "Line 4: 1 cell where the lines above have 3. Read before it: 2 lines of 2 values."},
    {"mixed separators", "Gamma;C0\tC90\n0;5\t5\n45;4\t4\n90;0\t0\n",
     "Line 2, cell 1: \"0;5\" is no number. 10 x 1 values needed (vertical x horizontal angles)."},
    {"decimal commas between commas", "Gamma,C0,C90\n0,5,5,5,5\n45,4,5,4,5\n90,0,5,0,5\n",
     "Line 2: 5 cells where the lines above have 3."},
    {"thousands apart between blanks", "Gamma C0 C90\n0 2 480 2 480\n45 1 200 1 300\n90 1 000 1 000\n",
     "Line 2: 5 cells where the lines above have 3."},
    {"quote that never ends", "\"Gamma\tC0\n0\t5\n45\t4\n90\t0\n", "", true},
    {"a cell without end", "Gamma\tC0\n0\t" + std::string(200'000, '5') + "\n90\t0\n",
     "Line 2, cell 2: \"555555555555555555555555555555...\" is no number. 10 x 1 values needed (vertical x horizontal "
     "angles)."},
    {"lone carriage returns", "Gamma\tC0\r0\t5\r45\t4\r90\t0\r", "", true},
    {"marks of direction",
     "\xE2\x80\x8FGamma\tC0\n0\t5\n45\t\xE2\x80\x8F"
     "4\n90\t0\n",
     "", true},
    {"one column too short", "5\n4\n3\n", "3 x 1 values read; 10 x 1 needed (vertical x horizontal angles)."},
    {"one column that fits", "9\n8\n7\n6\n5\n4\n3\n2\n1\n0\n", "", true},
    {"one number", "5\n", "1 x 1 values read; 10 x 1 needed (vertical x horizontal angles)."},
    {"names alone", "Gamma\tC0\tC90\n",
     "No line of numbers was found; a table has one for each angle. Line 1, cell 1: \"Gamma\" is no number. 10 x 1 "
     "values needed (vertical x horizontal angles)."},
    {"an IES file", "IESNA:LM-63-2002\nTILT=NONE\n1 1000 1 3 1 1 2 0 0 0\n1 1 10\n0 45 90\n0\n3 2 1\n",
     "Line 4: 3 cells where the lines above have 10. Read before it: 1 line of 10 values. 10 x 1 values needed "
     "(vertical x horizontal angles)."},
    {"a million values", millionWithASlip(),
     "Line 1000: 999 cells where the lines above have 1000. Read before it: 999 lines of 1000 values. 10 x 1 values "
     "needed (vertical x horizontal angles)."},
};

TEST_F(PasteTableTest, nastyTextIsToldInASentenceAndChangesNothing)
{
    openPageFive();
    const Standing before = standing();
    bool byEscape = false;
    for (const NastyText &nasty : kTexts) {
        SCOPED_TRACE(nasty.name);
        byEscape = !byEscape;
        open(nasty.text, [&](PasteTableDialog &dialog) {
            EXPECT_TRUE(spinUntil([&] { return problem() != "The whole text is being read."; }));
            EXPECT_EQ(problem(), nasty.said);
            EXPECT_EQ(isOffered(), nasty.isTaken);
            if (!nasty.isTaken) {
                QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
                EXPECT_TRUE(dialog.isVisible()) << "Enter has taken it";
            }
            byEscape ? leave() : in<QPushButton>("cancelButton").click();
        });
        EXPECT_EQ(standing(), before);
        EXPECT_EQ(undoName(), "Undo");
    }
}

}  // namespace
}  // namespace penwright::test
