// What a screen reader is told of each page, by rule and by table.
#include <set>
#include <sstream>

#include "widgets/WizardTest.h"

namespace penwright::test {
namespace {

std::string roleOf(const QAccessibleInterface &object)
{
    const char *key = QMetaEnum::fromType<QAccessible::Role>().valueToKey(object.role());
    return key ? key : "?";
}

std::string nameOf(const QAccessibleInterface &object)
{
    return object.text(QAccessible::Name).toStdString();
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

class ReadPage : public WizardTest, public testing::WithParamInterface<PageCase> {
protected:
    void SetUp() override
    {
        startWizard();
        fillPageTwo();
        fillPageFour();
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

/// The name of a cell's header, which the toolkit makes anew and leaves to whoever asks.
std::string takeName(const QList<QAccessibleInterface *> &headers)
{
    for (QAccessibleInterface *header : headers)
        QAccessible::registerAccessibleInterface(header);
    return headers.isEmpty() ? "no header" : nameOf(*headers.first());
}

/// "row | column | cell" for each of the grid's cells from a first one on.
std::string cellsOf(QWidget *grid, int rows, int columns)
{
    QAccessibleTableInterface *table = QAccessible::queryAccessibleInterface(grid)->tableInterface();
    std::ostringstream text;
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column) {
            QAccessibleInterface *cell = table->cellAt(row, column);
            const std::string description = cell->text(QAccessible::Description).toStdString();
            text << takeName(cell->tableCellInterface()->rowHeaderCells()) << " | "
                 << takeName(cell->tableCellInterface()->columnHeaderCells()) << " | " << nameOf(*cell)
                 << (description.empty() ? "" : " (" + description + ")") << "\n";
        }
    return text.str();
}

class ReadGrid : public WizardTest {
protected:
    void SetUp() override
    {
        startWizard();
        fillPageTwo();
        fillPageFour();
    }
};

TEST_F(ReadGrid, cellsOfTiltAreToldByRowAndColumn)
{
    EXPECT_EQ(cellsOf(find("lmpGridTiltMultiplier"), 2, 2),
              "Row 1 | Angle | 0\nRow 1 | Factor | 0\nRow 2 | Angle | 90\nRow 2 | Factor | 0\n");
}

TEST_F(ReadGrid, cellsOfKeywordsAreToldByRowAndColumn)
{
    window->ShowPage(kKeywordPage);
    EXPECT_EQ(cellsOf(find("keyGrid"), 1, 2), "Row 1 | Keyword | IESNA:LM-63-2002\nRow 1 | Description | \n");
    QAccessibleTableInterface *table = QAccessible::queryAccessibleInterface(find("keyGrid"))->tableInterface();
    EXPECT_EQ(takeName(table->cellAt(9, 0)->tableCellInterface()->rowHeaderCells()), "New row");
}

TEST_F(ReadGrid, cellsOfAnglesAreToldByAxisAndNumber)
{
    EXPECT_EQ(cellsOf(find("phoGridVert"), 1, 2), "Vertical angle | 1 | 0\nVertical angle | 2 | 10\n");
    EXPECT_EQ(cellsOf(find("phoGridHorz"), 1, 1), "Horizontal angle | 1 | 0\n");
}

TEST_F(ReadGrid, cellsOfCandelasAreToldByTheirAngles)
{
    find<QAbstractButton>("cmdNext30")->click();
    fillPageFive();
    EXPECT_EQ(cellsOf(find("cdaGridCd"), 2, 2),
              "V 0 | Vertical angle | 0 (Read-only)\nV 0 | H 0 | 9\n"
              "V 10 | Vertical angle | 10 (Read-only)\nV 10 | H 0 | 8\n");
    find<GridView>("cdaGridCd")->goTo(2, 1);
    typeText("5");
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), "V 10, H 0");
}

TEST_F(ReadGrid, editorWithAListIsNamedToo)
{
    window->ShowPage(kKeywordPage);
    find<GridView>("keyGrid")->goTo(2, 0);
    press(Qt::Key_F2);
    auto *box = find("keyGrid")->findChild<QComboBox *>();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->accessibleName(), "Row 2, Keyword");
    EXPECT_EQ(box->lineEdit()->accessibleName(), "Row 2, Keyword");
    EXPECT_EQ(box->itemData(0, Qt::AccessibleDescriptionRole).toString(), "Test report number");
}

class ReadHint : public WizardTest {
protected:
    void SetUp() override { startWizard(); }
    std::string description(const std::string &name) { return find(name)->accessibleDescription().toStdString(); }
};

TEST_F(ReadHint, keywordIsExplainedWithItsGrid)
{
    window->ShowPage(kKeywordPage);
    EXPECT_EQ(description("keyGrid"), "Version line of the format of 2002");
    press(Qt::Key_Down);
    EXPECT_EQ(description("keyGrid"), "Test report number");
    press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(description("keyGrid"), "Type here to add line 10.");
}

TEST_F(ReadHint, lineThatIsTooLongAndEmptyRowsAreToldWithTheGrid)
{
    window->ShowPage(kKeywordPage);
    find<GridView>("keyGrid")->goTo(2, 1);
    press(Qt::Key_F2);
    auto *line = find("keyGrid")->findChild<QLineEdit *>();
    line->setText(QString(248, 'a'));  // with "[TEST]" all that a line may have
    EXPECT_EQ(description("keyGrid"), "Test report number");
    typeText("b");
    EXPECT_EQ(description("keyGrid"), "Test report number. The line is too long: more than 254 characters.");
    press(Qt::Key_Escape);
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(description("keyGrid"), "Row 2 is empty: it is written to the file as an empty line.");
}

TEST_F(ReadHint, unitsAreToldWithTheDimensions)
{
    EXPECT_EQ(description("txtWidth"), "Feet");
    find<QAbstractButton>("rdoMeters")->click();
    for (const std::string box : {"txtWidth", "txtLength", "txtHeight"})
        EXPECT_EQ(description(box), "Meters");
}

TEST_F(ReadHint, postThatNobodyTakesIsToldWithTheButtons)
{
    window->ShowPage(kFinishPage);
    click("cmdUnname");
    const std::string status = find<QLabel>("labStatus")->text().toStdString();
    ASSERT_NE(status, "");
    EXPECT_EQ(description("cmdUnname"), status);
    EXPECT_EQ(description("cmdSaveAs"), status);
}

class ReadWindow : public WizardTest {};

TEST_F(ReadWindow, isFoundInsideTheWindowOfAnotherProcess)
{
    startWizard();
    const auto index = [this] {
        const QAccessibleInterface *program = QAccessible::queryAccessibleInterface(qApp);
        QAccessibleInterface *frame = QAccessible::queryAccessibleInterface(window.get());
        const int found = program->indexOfChild(frame);
        EXPECT_EQ(program->child(found), frame);
        EXPECT_LT(found, program->childCount());
        return found;
    };
    EXPECT_GE(index(), 0);
    QWindow host;
    host.create();
    window->windowHandle()->setParent(&host);
    EXPECT_EQ(index(), 0);
    window->windowHandle()->setParent(nullptr);
    EXPECT_GE(index(), 0);
}

TEST_F(ReadWindow, warningsAreToldWithTheirDialog)
{
    startWizard();
    warningsOf([this] { click("cmdNext10"); });
    EXPECT_EQ(window->dlgWarn().accessibleDescription().toStdString(),
              "Number of Lamps is empty.\nLumens per Lamp is empty.\nCandela Multiplier is empty.\n"
              "Ballast Factor is empty.\nWatts is empty.\nWidth is empty.\nLength is empty.\nHeight is empty.");
}

TEST_F(ReadWindow, ofALongListTheBeginningIsTold)
{
    startWizard();
    for (int i = 1; i <= 11; ++i)
        window->dlgWarn().Add("line " + std::to_string(i));
    warningsOf([this] { window->dlgWarn().showModal(); });
    const QString told = window->dlgWarn().accessibleDescription();
    EXPECT_TRUE(told.startsWith("line 1\nline 2\n") && told.endsWith("line 10\nand more")) << qPrintable(told);
}

struct SeenHint {
    int page;
    std::string field;
    std::string label;
};

void PrintTo(const SeenHint &hint, std::ostream *out)
{
    *out << hint.field;
}

class HintOfAField : public WizardTest, public testing::WithParamInterface<SeenHint> {};

INSTANTIATE_TEST_SUITE_P(Pages, HintOfAField,
                         testing::Values(SeenHint{kLampPage, "txtLumPerLamp", "labLumens"},
                                         SeenHint{kTiltPage, "lmpTxtNumAngles", "labCount"},
                                         SeenHint{kTiltPage, "lmpGridTiltMultiplier", "labTable"},
                                         SeenHint{kDistributionPage, "phoGridVert", "labVertAngles"},
                                         SeenHint{kDistributionPage, "phoGridHorz", "labHorzAngles"}));

TEST_P(HintOfAField, isSeenBelowItAsWellAsHeard)
{
    startWizard();
    window->ShowPage(GetParam().page);
    fillPageFour();
    const auto *label = find<QLabel>(GetParam().label);
    const QWidget *field = find(GetParam().field);
    EXPECT_TRUE(label->isVisible());
    EXPECT_FALSE(label->text().isEmpty());
    EXPECT_TRUE(field->accessibleDescription().contains(label->text())) << label->text().toStdString();
    EXPECT_GE(label->mapToGlobal(QPoint()).y(), field->mapToGlobal(QPoint(0, field->height())).y());
}

TEST_F(ReadHint, keyOfAButtonIsSeenAsWellAsHeard)
{
    loadWindow();
    for (const char *button : {"cmdCancel", "cmdHelp15", "cmdNext20", "cmdBack30"}) {
        EXPECT_EQ(find(button)->toolTip(), find(button)->accessibleDescription()) << button;
        EXPECT_FALSE(find(button)->toolTip().isEmpty()) << button;
    }
}

}  // namespace
}  // namespace penwright::test
