#include "disorder/RandomScript.h"

#include <array>
#include <cstddef>
#include <iterator>
#include <random>
#include <string>

namespace penwright::test {
namespace {

constexpr std::array kTexts{"0",   "1",     "12",     "3.5", "90",    "180",      "-1",        "abc",           "1e3",
                            "1e9", "32768", "[TEST]", " ",   "1e400", "\xc3\xa4", "0.1234567", "1000000000000", "1,5"};
constexpr std::array kKeys{
    "Return", "Tab",      "Shift+Tab",  "Escape",      "Escape", "Down",      "Up",           "Left",   "Right",
    "Home",   "End",      "PgUp",       "PgDown",      "Delete", "Backspace", "F1",           "F2",     "Space",
    "Ctrl+A", "Ctrl+C",   "Ctrl+X",     "Ctrl+V",      "Ctrl+Z", "Ctrl+Y",    "Ctrl+Shift+Z", "Ctrl++", "Ctrl+-",
    "Alt+Up", "Alt+Down", "Shift+Down", "Shift+Right", "Menu",   "Ctrl+Home", "Ctrl+End",     "Alt+N",  "Alt+B"};
constexpr std::array kControls{"txtNumLamps",
                               "txtLumPerLamp",
                               "txtMultiplier",
                               "txtBallast",
                               "txtWatt",
                               "txtWidth",
                               "txtLength",
                               "txtHeight",
                               "rdoFeet",
                               "rdoMeters",
                               "chkIncludeTilt",
                               "lmpCmbShape",
                               "lmpTxtNumAngles",
                               "l2lg0",
                               "l2lg1",
                               "l2lg2",
                               "lmpGridTiltMultiplier",
                               "keyGrid",
                               "cmdDefaultLoad",
                               "cmdSaveDefaults",
                               "rdoB",
                               "rdoC",
                               "phoCmbVert",
                               "phoCmbHorz",
                               "phoGridVert",
                               "phoGridHorz",
                               "cdaGridCd",
                               "picCda",
                               "cmdUnname",
                               "cmdSaveAs",
                               "cmdUnname",
                               "cmdSaveAs",
                               "draftTakeOver",
                               "draftDiscard",
                               "draftMore",
                               "cmdCancel"};
constexpr std::array kGrids{"lmpGridTiltMultiplier", "keyGrid", "phoGridVert", "phoGridHorz", "cdaGridCd"};
constexpr std::array kAnswers{"Yes", "No", "OK", "Cancel", "Escape", "Enter", "Close", "Save", "Open"};
constexpr std::array kHostTexts{"START",
                                "START",
                                "DATACHANGED",
                                "datachanged",
                                " Start ",
                                "MOVEWIN,0,0,0,0",
                                "MOVEWIN,1,2,300,200",
                                "MOVEWIN,-5,-5,-1,40000",
                                "MOVEWIN,99999999999,0,0,0",
                                "MOVEWIN,1,2",
                                "MOVEWIN",
                                "DELETEFILE",
                                "DELETEFILE,",
                                "DELETEFILE,nobody.ies",
                                "nothing,known",
                                ",,,",
                                "START,1,2,3",
                                "\xff\xfe",
                                "DATACHANGED\nSTART",
                                "\n",
                                "x\ny,z\n"};

/// Draws acts. A turn of it may be several lines that only together come to anything.
class Drawing {
public:
    explicit Drawing(unsigned seed) : m_random(seed) {}

    Script next()
    {
        const unsigned kind = any(100);
        if (kind < 4)
            return wholeWay();
        if (kind < 16)
            return {"fill " + number(any(12))};
        if (kind < 34)
            return any(5) ? Script{"fill " + number(any(12)), "next"} : Script{"back"};
        if (kind < 76)
            return byUser(any(42));
        if (kind < 88)
            return any(6) ? Script{"answer " + oneOf(kAnswers)} : Script{"name " + name(), "answer Enter"};
        return byHost(any(60));
    }

private:
    // The library's distributions differ from one implementation to the next.
    unsigned any(unsigned limit) { return static_cast<unsigned>(m_random()) % limit; }
    std::string number(unsigned value) { return std::to_string(value); }

    template <typename Entries>
    std::string oneOf(const Entries &entries)
    {
        return entries[any(static_cast<unsigned>(std::size(entries)))];
    }

    std::string name() { return oneOf(std::array{"new", "old", "other.txt", "none/x", "folder", "", "n\xc3\xa4me"}); }

    /// From wherever to the last page, and a file made of it.
    Script wholeWay()
    {
        Script script;
        for (int page = 0; page < 5; ++page)
            script.insert(script.end(), {"fill " + number(any(12)), "next", "answer OK"});
        if (any(2))
            script.insert(script.end(), {"click cmdSaveAs", "name " + name(), "answer Enter"});
        else
            script.push_back("click cmdUnname");
        return script;
    }

    /// A run that ends, and what the next one offers of it.
    Script newRun()
    {
        const std::string how = oneOf(std::array{"close", "close", "delete", "gone", "signal", "alone"});
        return {"end " + how, "sleep 20", oneOf(std::array{"click draftTakeOver", "click draftDiscard", "next"})};
    }

    Script byUser(unsigned kind)
    {
        if (kind < 9)
            return {"type " + oneOf(kTexts)};
        if (kind < 16)
            return {"key " + oneOf(kKeys)};
        if (kind < 20)
            return {"focus " + oneOf(kControls), "type " + oneOf(kTexts)};
        if (kind < 25)
            return {"cell " + oneOf(kGrids) + " " + number(any(12)) + " " + number(any(5)), "type " + oneOf(kTexts),
                    "key " + oneOf(kKeys)};
        if (kind < 29)
            return {"clip " + escaped(block()), "key Ctrl+V"};
        if (kind < 31)
            return {"clip " + escaped(table()), "key Ctrl+Shift+V"};
        if (kind < 36)
            return {oneOf(std::array{"undo", "redo", "undoRedo", "undoRedo"})};
        if (kind < 40)
            return {"click " + oneOf(kControls)};
        return {oneOf(std::array{"menu", "press cmdNext10", "press cmdNext30", "press cmdNext50", "press cmdUnname",
                                 "press cmdCancel", "resize 300 200", "resize 900 700"})};
    }

    Script byHost(unsigned kind)
    {
        if (kind < 26)
            return {"host " + escaped(oneOf(kHostTexts))};
        if (kind < 36)
            return {"record " + number(any(1000)), "host DATACHANGED"};
        if (kind < 41)
            return {"broken " + number(any(1000)), "host DATACHANGED"};
        if (kind < 50)
            return {"takes " + oneOf(std::array{"atOnce", "atOnce", "late", "never"})};
        if (kind < 54)
            return {"lock " + number(1 + any(4))};
        return any(2) ? newRun() : Script{"host nothing"};
    }

    std::string block()
    {
        std::string text;
        for (unsigned rows = 1 + any(12), columns = 1 + any(3); rows > 0; --rows)
            for (unsigned column = 0; column < columns; ++column)
                text += (any(15) ? number(any(2000)) : oneOf(kTexts)) + (column + 1 < columns ? "\t" : "\n");
        return text;
    }

    std::string table()
    {
        const unsigned across = 1 + any(4);
        std::string text = any(4) ? "Gamma" : "x";
        for (unsigned h = 0; h < across; ++h)
            text += "\tC" + number(across == 1 ? 0 : h * 90 / (across - 1));
        for (unsigned v = 0, down = 2 + any(5); v < down; ++v) {
            text += "\n" + number(v * 90 / (down - 1));
            for (unsigned h = 0; h < across; ++h)
                text += "\t" + (any(40) ? number(any(9000)) : oneOf(kTexts));
        }
        return text + "\n";
    }

    std::mt19937 m_random;
};

}  // namespace

Script randomScript(unsigned seed, int acts)
{
    Drawing drawing(seed);
    Script script;
    while (static_cast<int>(script.size()) < acts)
        for (const std::string &line : drawing.next())
            script.push_back(line);
    return script;
}

}  // namespace penwright::test
