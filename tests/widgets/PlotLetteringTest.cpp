#include <gtest/gtest.h>

#include <QPainter>

#include <set>
#include <string>

#include "plot/PlotFrame.h"
#include "plot/PlotLettering.h"
#include "plot/PlotRings.h"
#include "widgets/PaintNotes.h"

namespace penwright::test {
namespace {

class PlotLettering : public testing::Test {
protected:
    void paint(double side, bool typeC, double largest)
    {
        frame = plotFrame(QRectF(0, 0, side, side), QFont());
        notes.texts.clear();
        NotedPaper paper(notes);
        QPainter painter(&paper);
        paintPlotLettering(painter, frame, QFont(), typeC, plotRings(largest));
    }

    /// Where a text begins as seen from the centre, x to the right and y up; it stands there once.
    QPointF placeOf(const std::string &text)
    {
        EXPECT_EQ(notes.texts.count(text), 1U) << text;
        const auto found = notes.texts.find(text);
        if (found == notes.texts.end())
            return {};
        return {found->second.x() - frame.centre.x(), frame.centre.y() - found->second.y()};
    }

    std::multiset<std::string> degrees() const
    {
        std::multiset<std::string> found;
        for (const auto &[text, place] : notes.texts)
            if (text.ends_with("\u00B0"))
                found.insert(text.substr(0, text.size() - 2));
        return found;
    }

    PlotFrame frame;
    PaintNotes notes;
};

TEST_F(PlotLettering, lettersStandAtTheEndsOfTheirAxes)
{
    for (const double side : {300.0, 40.0}) {
        paint(side, true, 100);
        EXPECT_EQ(frame.lettered, side > 100);
        EXPECT_GT(placeOf("V").x(), 0);
        EXPECT_GT(placeOf("V").y(), frame.radius / 4) << side;
        EXPECT_GT(placeOf("H").x(), frame.radius / 4) << side;
        EXPECT_GT(placeOf("H").y(), 0);
        EXPECT_LT(placeOf("H").y(), frame.radius);
    }
}

TEST_F(PlotLettering, typeCCountsFromNadirUpOnBothSides)
{
    paint(300, true, 0);
    EXPECT_EQ(degrees(),
              (std::multiset<std::string>{"0", "30", "30", "60", "60", "90", "90", "120", "120", "150", "150", "180"}));
    EXPECT_LT(placeOf("0\u00B0").y(), -frame.radius);
    EXPECT_GT(placeOf("180\u00B0").y(), frame.radius);
}

TEST_F(PlotLettering, typeBCountsFromTheRightUpAndDown)
{
    paint(300, false, 0);
    EXPECT_EQ(degrees(), (std::multiset<std::string>{"-90", "-60", "-30", "0", "30", "60", "90"}));
    EXPECT_GT(placeOf("0\u00B0").x(), frame.radius);
    EXPECT_GT(placeOf("90\u00B0").y(), frame.radius);
    EXPECT_LT(placeOf("-90\u00B0").y(), -frame.radius);
}

TEST_F(PlotLettering, ringsBearTheirCandelasBesideTheUpperAxis)
{
    for (const bool typeC : {true, false}) {
        paint(300, typeC, 500);
        for (const char *candela : {"100", "200", "300", "400", "500"}) {
            EXPECT_EQ(placeOf(candela).x() > 0, typeC) << candela;
            EXPECT_GT(placeOf(candela).y(), 0) << candela;
        }
        EXPECT_GT(placeOf("500").y(), placeOf("400").y());
    }
}

TEST_F(PlotLettering, smallPicturesHaveLettersAlone)
{
    paint(40, true, 500);
    EXPECT_EQ(notes.texts.size(), 2U);
}

}  // namespace
}  // namespace penwright::test
