// What a screen reader is told of each page, by rule and by table.
#include <set>

#include "widgets/AccessibilityTest.h"

namespace penwright::test {
namespace {

std::string roleOf(const QAccessibleInterface &object)
{
    const char *key = QMetaEnum::fromType<QAccessible::Role>().valueToKey(object.role());
    return key ? key : "?";
}

/// The labels that are said with an object, without the group that holds it, which is said on entering.
std::string labelsOf(const QAccessibleInterface &object)
{
    std::string text;
    for (const auto &[label, relation] : object.relations(QAccessible::Label))
        if (label->role() == QAccessible::StaticText)
            text += " < " + nameOf(*label);
    return text;
}

/// One line: object name, role, name, description, labels.
std::string lineOf(const QAccessibleInterface &object)
{
    const std::string description = object.text(QAccessible::Description).toStdString();
    return object.object()->objectName().toStdString() + ": " + roleOf(object) + " " + nameOf(object) +
           (description.empty() ? "" : " (" + description + ")") + labelsOf(object) + "\n";
}

using Objects = std::vector<QAccessibleInterface *>;

/// All that is shown below an object, in order; cells and headers of tables are left to their own tests.
void collect(QAccessibleInterface *object, Objects &found)
{
    if (!object || object->state().invisible)
        return;
    found.push_back(object);
    if (!object->tableInterface())
        for (int i = 0; i < object->childCount(); ++i)
            collect(object->child(i), found);
}

struct PageCase {
    int index;
    std::string told;  ///< of all that takes the focus and of the pictures
};

void PrintTo(const PageCase &page, std::ostream *out)
{
    *out << "page " << page.index + 1;
}

class ReadPage : public ReadWizard, public testing::WithParamInterface<PageCase> {
protected:
    void SetUp() override
    {
        ReadWizard::SetUp();
        if (GetParam().index == kCandelaPage)
            find<QAbstractButton>("cmdNext30")->click();
        else
            window->ShowPage(GetParam().index);
    }
    QAccessibleInterface *page()
    {
        return QAccessible::queryAccessibleInterface(find("nfra" + std::to_string(GetParam().index)));
    }
    Objects shown()
    {
        Objects found;
        collect(page(), found);
        return found;
    }
};

const std::vector<PageCase> kPageCases{
    {0, R"(txtNumLamps: EditableText Number Of Lamps < Number Of Lamps
txtLumPerLamp: EditableText Lumens Per Lamp (Lumens, or -1 for absolute photometry) < Lumens Per Lamp
txtMultiplier: EditableText Candela Multiplier < Candela Multiplier
txtBallast: EditableText Ballast Factor < Ballast Factor
txtWatt: EditableText Input Watts (Watts) < Input Watts
lmpCmbShape: ComboBox Luminous shape < Shape:
lmpPicHousing: Graphic Sketch of the luminous shape (No shape: the length lies along 0 and 180 degrees, 0 at the lower left; the width along 90 and 270 degrees, 90 at the lower right; the height upright.)
txtWidth: EditableText Width: (Feet) < Width:
txtLength: EditableText Length: (Feet) < Length:
txtHeight: EditableText Height: (Feet) < Height:
rdoFeet: RadioButton Units: Feet < Units:
rdoMeters: RadioButton Units: Meters
chkIncludeTilt: CheckBox Include Luminaire Tilt Information
cmdCancel: Button Cancel (Escape)
cmdHelp10: Button Help (F1)
cmdNext10: Button Next > (Alt+N)
cmdBack10: Button < Back (Alt+B)
)"},
    {1,
     R"(lmpTxtNumAngles: EditableText Number Of Angles (A new number sets all angles and factors to 0) < Number Of Angles
l2lg0: RadioButton Lamp To Luminaire Geometry: Vertical < Lamp To Luminaire Geometry:
l2lg1: RadioButton Lamp To Luminaire Geometry: Horizontal Along The 90-degree Plane
l2lg2: RadioButton Lamp To Luminaire Geometry: Horizontal Along The 0-degree Plane
lmpGridTiltMultiplier: Table Tilt angles and factors (Angles in degrees, from 0 up to 90 or 180. Factors start at 0.)
cmdCancel15: Button Cancel (Escape)
cmdHelp15: Button Help (F1)
cmdNext15: Button Next > (Alt+N)
cmdBack15: Button < Back (Alt+B)
)"},
    {2,
     R"(keyGrid: Table Keyword lines (Version line of the format of 2002)
cmdDefaultLoad: Button Load Defaults
cmdSaveDefaults: Button Save As Defaults
cmdCancel20: Button Cancel (Escape)
cmdHelp20: Button Help (F1)
cmdNext20: Button Next > (Alt+N)
cmdBack20: Button < Back (Alt+B)
)"},
    {3, R"(rdoC: RadioButton Photometric Type: IESNA Type C       [Indoor, Roadway]
rdoB: RadioButton Photometric Type: IESNA Type B       [Floodlighting]
phoCmbVert: ComboBox 10, Downlight 0 to 90, 10 degree increments < Number Of Vertical Angles
phoGridVert: Table Vertical angles (Degrees, in ascending order)
phoCmbHorz: ComboBox 01, Laterally Symmetric, No increment < Number Of Horizontal Angles
phoGridHorz: Table Horizontal angles (Degrees, in ascending order)
cmdCancel30: Button Cancel (Escape)
cmdHelp30: Button Help (F1)
cmdNext30: Button Next > (Alt+N)
cmdBack30: Button < Back (Alt+B)
)"},
    {4, R"(Image1: Graphic Rows are vertical angles, columns are horizontal angles
cdaGridCd: Table Candela values (Candela, a row for each vertical angle and a column for each horizontal angle, in degrees. You can Copy (Ctrl+C) and Paste (Ctrl+V) tab delimited values into the candela grid)
picCda: Graphic Candela plot (Vertical plane through horizontal angle 0: no values; horizontal cone through vertical angle 0: no values.)
plotLinear: CheckBox Linear view (Shows the angles along a line instead of around a centre)
rtbVert: EditableText Vertical Plane Through Horizontal Angle (Degrees; the blue curve of the plot) < Vertical Plane Through Horizontal Angle
rtbHorz: EditableText Horizontal Cone Through Vertical Angle (Degrees; the red curve of the plot) < Horizontal Cone Through Vertical Angle
cmdCancel50: Button Cancel (Escape)
cmdHelp50: Button Help (F1)
cmdNext50: Button Next > (Alt+N)
cmdBack50: Button < Back (Alt+B)
)"},
    {5,
     R"(cmdUnname: Button Finish Unnamed (Load The File Into Toolbox Without Saving) < Load The File Into Toolbox Without Saving
cmdSaveAs: Button Finish And Save As... (Choose A Filename And Save File Now) < Choose A Filename And Save File Now
reviewRemarks: List Remarks (A double click or Enter goes to the place, F1 says why.)
reviewFigures: List Figures
reviewTabs: Client Picture and file
reviewPicture: Graphic Polar picture of the main planes (Vertical plane: no values; Horizontal plane: no values.)
cmdCancel80: Button Cancel (Escape)
cmdHelp80: Button Help (F1)
cmdNext80: Button Next > (Alt+N)
cmdBack80: Button < Back (Alt+B)
)"}};

INSTANTIATE_TEST_SUITE_P(Pages, ReadPage, testing::ValuesIn(kPageCases));

bool isTold(const QAccessibleInterface &object)
{
    auto *widget = qobject_cast<QWidget *>(object.object());
    const bool isPart = widget && widget->objectName().startsWith("qt_");
    return widget && !isPart && !widget->objectName().isEmpty() &&
           (object.role() == QAccessible::Graphic || widget->focusPolicy() != Qt::NoFocus) &&
           !qobject_cast<QScrollArea *>(widget);
}

TEST_P(ReadPage, tellsEachControl)
{
    std::string told;
    for (const QAccessibleInterface *object : shown())
        if (isTold(*object))
            told += lineOf(*object);
    EXPECT_EQ(told, GetParam().told);
}

TEST_P(ReadPage, isAGroupThatIsNamedAsTheWindow)
{
    EXPECT_EQ(roleOf(*page()), "Grouping");
    EXPECT_EQ(nameOf(*page()), kCaptions.at(GetParam().index));
    const QAccessibleInterface &frame = *QAccessible::queryAccessibleInterface(window.get());
    EXPECT_EQ(roleOf(frame), "Window");
    EXPECT_EQ(nameOf(frame), kCaptions.at(GetParam().index));
}

TEST_P(ReadPage, namesAllThatTakesTheFocusAndEachDifferently)
{
    std::set<std::string> names;
    int count = 0;
    for (const QAccessibleInterface *object : shown()) {
        if (!object->state().focusable || !isTold(*object))
            continue;
        EXPECT_NE(nameOf(*object), "") << roleOf(*object);
        names.insert(nameOf(*object));
        ++count;
    }
    EXPECT_GE(count, 6);
    EXPECT_EQ(names.size(), static_cast<std::size_t>(count));
}

TEST_P(ReadPage, hasNoOtherPageAndNoHiddenBox)
{
    for (const std::string box : {"txtNewFilename", "txtIESFile", "txtCmds", "txtFiles"})
        EXPECT_TRUE(QAccessible::queryAccessibleInterface(find(box))->state().invisible) << box;
    for (int index = 0; index < kPageCount; ++index)
        EXPECT_EQ(QAccessible::queryAccessibleInterface(find("nfra" + std::to_string(index)))->state().invisible,
                  index != GetParam().index);
}

}  // namespace
}  // namespace penwright::test
