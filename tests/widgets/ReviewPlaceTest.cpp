// The way from a remark to the place that it is about, and on from there.
#include "core/IesText.h"
#include "review/RecordPlace.h"
#include "widgets/ReviewTest.h"

namespace penwright::test {
namespace {

struct PlaceCase {
    RecordPlace place;
    std::string where;
};

void PrintTo(const PlaceCase &row, std::ostream *out)
{
    *out << row.where;
}

class ReviewPlace : public Review, public testing::WithParamInterface<PlaceCase> {};

INSTANTIATE_TEST_SUITE_P(Fields, ReviewPlace,
                         testing::Values(PlaceCase{{RecordField::NumLamps}, "1 txtNumLamps"},
                                         PlaceCase{{RecordField::LumensPerLamp}, "1 txtLumPerLamp"},
                                         PlaceCase{{RecordField::CandelaMultiplier}, "1 txtMultiplier"},
                                         PlaceCase{{RecordField::BallastFactor}, "1 txtBallast"},
                                         PlaceCase{{RecordField::InputWatts}, "1 txtWatt"},
                                         PlaceCase{{RecordField::Width}, "1 txtWidth"},
                                         PlaceCase{{RecordField::Length}, "1 txtLength"},
                                         PlaceCase{{RecordField::Height}, "1 txtHeight"},
                                         PlaceCase{{RecordField::TiltIncl}, "1 chkIncludeTilt"},
                                         PlaceCase{{RecordField::TiltMultipliers, 2}, "2 lmpGridTiltMultiplier 2,1"},
                                         PlaceCase{{RecordField::Keywords, 3}, "3 keyGrid 3,1"},
                                         PlaceCase{{RecordField::Keywords}, "3 keyGrid 10,0"},
                                         PlaceCase{{RecordField::VertAngles, 7}, "4 phoGridVert 1,6"},
                                         PlaceCase{{RecordField::HorAngles, 1}, "4 phoGridHorz 1,0"},
                                         PlaceCase{{RecordField::Candela, 1, 8}, "5 cdaGridCd 8,1"}));

TEST_P(ReviewPlace, isGoneToWithTheFocusOnItsFieldOrCell)
{
    const std::string before = values();
    window->goToPlace(GetParam().place);
    ASSERT_TRUE(spinUntil([this] { return !find<QTimer>("tmrFlip")->isActive(); }));
    QCoreApplication::processEvents();
    EXPECT_EQ(where(), GetParam().where);
    EXPECT_FALSE(QApplication::focusWidget()->visibleRegion().isEmpty());
    EXPECT_EQ(values(), before);
    EXPECT_TRUE(find<QAbstractButton>("chkIncludeTilt")->isChecked());
}

TEST_P(ReviewPlace, leadsOnByNextToTheSameFile)
{
    const std::string before = iesFileText(record());
    window->goToPlace(GetParam().place);
    for (const std::string next : {"cmdNext10", "cmdNext15", "cmdNext20", "cmdNext30", "cmdNext50"})
        if (find(next)->isVisible())
            leave(next);
    EXPECT_EQ(shownPage(), kFinishPage);
    EXPECT_EQ(iesFileText(record()), before);
}

struct RemarkCase {
    std::string sentence;
    std::function<void(PhotometricRecord &)> change;
    std::string where;
};

void PrintTo(const RemarkCase &row, std::ostream *out)
{
    *out << row.sentence;
}

class ReviewRemark : public Review, public testing::WithParamInterface<RemarkCase> {
protected:
    void SetUp() override
    {
        Review::SetUp();
        PhotometricRecord odd = record();
        GetParam().change(odd);
        showRecord(odd);
        ASSERT_GE(rowOf(GetParam().sentence), 0);
    }
};

INSTANTIATE_TEST_SUITE_P(
    Rules, ReviewRemark,
    testing::Values(
        RemarkCase{"The table gives ", [](PhotometricRecord &) {}, "1 txtLumPerLamp"},
        RemarkCase{"This looks like candela per kilolumen", [](PhotometricRecord &odd) { odd.LumensPerLamp = 9000; },
                   "1 txtMultiplier"},
        RemarkCase{"0.0", [](PhotometricRecord &odd) { odd.InputWatts = 9000; }, "1 txtWatt"},
        RemarkCase{"Absolute values already contain the ballast",
                   [](PhotometricRecord &odd) {
                       odd.LumensPerLamp = -1;
                       odd.BallastFactor = 0.9F;
                   },
                   "1 txtBallast"},
        RemarkCase{"Length 48 ft", [](PhotometricRecord &odd) { odd.Length = 48; }, "1 txtLength"},
        RemarkCase{"Height 48 ft", [](PhotometricRecord &odd) { odd.Height = 48; }, "1 txtHeight"},
        RemarkCase{"Without dimensions", [](PhotometricRecord &odd) { odd.Width = odd.Length = odd.Height = 0; },
                   "1 txtWidth"},
        RemarkCase{"Many programs refuse tilt data; the factor at 90",
                   [](PhotometricRecord &odd) { odd.TiltMultipliers(1) = 1; }, "2 lmpGridTiltMultiplier 2,1"},
        RemarkCase{"Many programs refuse tilt data.",
                   [](PhotometricRecord &odd) { odd.TiltMultipliers(1) = odd.TiltMultipliers(2) = 1; },
                   "1 chkIncludeTilt"},
        RemarkCase{"[TESTLAB] is empty", [](PhotometricRecord &odd) { odd.Keywords(3) = "[TESTLAB]"; },
                   "3 keyGrid 3,1"},
        RemarkCase{"[TESTLAB] is missing", [](PhotometricRecord &odd) { odd.Keywords(3) = "[OTHER] x"; },
                   "3 keyGrid 10,0"},
        RemarkCase{"The beam is ",
                   [](PhotometricRecord &odd) {
                       odd.Candela.reset(1, 10);
                       odd.Candela(1, 1) = 10;
                   },
                   "4 phoGridVert 1,0"},
        RemarkCase{"900 at V 40", [](PhotometricRecord &odd) { odd.Candela(1, 5) = 900; }, "5 cdaGridCd 5,1"}));

TEST_P(ReviewRemark, leadsToItsPlaceByEnter)
{
    chooseByEnter(rowOf(GetParam().sentence));
    EXPECT_EQ(where(), GetParam().where);
}

TEST_P(ReviewRemark, leadsToItsPlaceByADoubleClick)
{
    chooseByDoubleClick(rowOf(GetParam().sentence));
    EXPECT_EQ(where(), GetParam().where);
}

TEST_F(Review, goesToPageTwoOnlyWhereTheRecordHasTilt)
{
    record().TiltIncl = false;
    window->goToPlace({RecordField::TiltMultipliers, 1});
    EXPECT_EQ(where(), "1 chkIncludeTilt");
    EXPECT_FALSE(find<QAbstractButton>("chkIncludeTilt")->isChecked());
}

TEST_F(Review, ticksTheBoxOfTheTiltThatTheHostsRecordHas)
{
    find<QAbstractButton>("chkIncludeTilt")->setChecked(false);
    window->goToPlace({RecordField::InputWatts});
    EXPECT_TRUE(find<QAbstractButton>("chkIncludeTilt")->isChecked());
}

TEST_F(Review, keepsTheFocusOnThePageWhereAPlaceIsNotThere)
{
    window->goToPlace({RecordField::Candela, 7, 700});
    EXPECT_EQ(shownPage(), kCandelaPage);
    EXPECT_EQ(focusName(), "cdaGridCd");
    window->ShowPage(kFinishPage);
    window->goToPlace({RecordField::Keywords, 99});
    EXPECT_EQ(shownPage(), kKeywordPage);
    EXPECT_EQ(focusName(), "keyGrid");
}

TEST_F(Review, leadsToADimensionThatTheShapeClosesByItsShape)
{
    find<QComboBox>("lmpCmbShape")->setCurrentIndex(1);
    ASSERT_FALSE(find("txtHeight")->isEnabled() && find("txtLength")->isEnabled());
    const bool isLengthClosed = !find("txtLength")->isEnabled();
    window->goToPlace({isLengthClosed ? RecordField::Length : RecordField::Height});
    EXPECT_EQ(where(), "1 lmpCmbShape");
}

}  // namespace
}  // namespace penwright::test
