#include "support/SpinUntil.h"
#include "support/ToolBench.h"
#include "widgets/WizardTest.h"

namespace penwright::test {
namespace {

struct UnitsCase {
    std::optional<std::string> setting;
    bool isFeet;
};

class Units : public WizardTest, public testing::WithParamInterface<UnitsCase> {};

INSTANTIATE_TEST_SUITE_P(Settings, Units,
                         testing::Values(UnitsCase{std::nullopt, true}, UnitsCase{"0", true}, UnitsCase{"1", false},
                                         UnitsCase{"", false}, UnitsCase{" 0", false}, UnitsCase{"0.0", false},
                                         UnitsCase{"feet", false}));

TEST_P(Units, comeFromTheUsersSettingAndAreNotWritten)
{
    if (GetParam().setting)
        store.write("Lumentor32", "Lumentor32", "InputUnits", *GetParam().setting);
    loadWindow();
    EXPECT_EQ(find<QRadioButton>("rdoFeet")->isChecked(), GetParam().isFeet);
    EXPECT_EQ(find<QRadioButton>("rdoMeters")->isChecked(), !GetParam().isFeet);
    EXPECT_EQ(store.readAll("Lumentor32", "Lumentor32").size(), GetParam().setting ? 1u : 0u);
}

class Load : public WizardTest {};

TEST_F(Load, windowIsNamedHiddenAndShowsNoPage)
{
    loadWindow();
    EXPECT_EQ(window->objectName(), "frmSample");
    EXPECT_EQ(caption(), "New Photometric File");
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(shownPage(), -1);
    EXPECT_EQ(window->size(), QSize(720, 560));
    EXPECT_EQ(window->formState(), 0);
    EXPECT_FALSE(window->ReDo());
}

TEST_F(Load, embeddedWindowMovesIntoTheHostAndKeepsItsFormerParent)
{
    loadWindow();
    EXPECT_EQ(embedding.adopted, window->winId());
    EXPECT_EQ(embedding.transcript, "parent 123\n");
    EXPECT_EQ(state.start.PreviousParent, 4711u);
}

TEST_F(Load, windowThatIsNotEmbeddedStaysWhereItIs)
{
    state.start.EmbedInHost = false;
    loadWindow();
    EXPECT_EQ(embedding.transcript, "");
    EXPECT_EQ(state.start.PreviousParent, 0u);
}

TEST_F(Load, shapesAreListedAndNoneIsSelected)
{
    loadWindow();
    const auto *shapes = find<QComboBox>("lmpCmbShape");
    std::string listed;
    for (int i = 0; i < shapes->count(); ++i)
        listed += std::to_string(i) + " " + shapes->itemText(i).toStdString() + "\n";
    EXPECT_EQ(listed,
              "0 Point\n1 Rectangle\n2 Rectangle w/ Luminous Sides\n3 Circle\n4 Ellipse\n5 Vertical Cylinder\n"
              "6 Vertical Ellipsoidal Cylinder\n7 Sphere\n8 Ellipsoidal Spheroid\n"
              "9 Horz Cylinder along Photometric Horz.\n10 Horz Ellipsoidal Cylinder along Photometric Horz.\n"
              "11 Horz Cylinder Perpendicular to Photometric Horz.\n"
              "12 Horz Ellipsoidal Cylinder Perpendicular to Photometric Horz.\n"
              "13 Vertical Circle Facing Photometric Horizontal\n14 Vertical Ellipse Facing Photometric Horizontal\n");
    EXPECT_EQ(shapes->currentIndex(), -1);
}

TEST_F(Load, wheelChangesNoClosedList)
{
    startWizard();
    auto *shapes = find<QComboBox>("lmpCmbShape");
    shapes->setCurrentIndex(3);
    QWheelEvent wheel(QPointF(5, 5), shapes->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(shapes, &wheel);
    EXPECT_EQ(shapes->currentIndex(), 3);
}

TEST_F(Load, pageOneHasItsFixedTexts)
{
    loadWindow();
    EXPECT_EQ(find<QLabel>("labPTB")->text(), "Units:");
    EXPECT_EQ(find<QAbstractButton>("rdoFeet")->text(), "Feet");
    EXPECT_EQ(find<QAbstractButton>("rdoMeters")->text(), "Meters");
    EXPECT_EQ(find<QGroupBox>("lmpFrame2")->title(), "Luminous Dimensions");
    EXPECT_EQ(find<QGroupBox>("Frame3")->title(),
              "Lamp Tilt Information (Only Needed For Lamps Whose Output Varies By Inclination)");
    EXPECT_EQ(find<QCheckBox>("chkIncludeTilt")->text(), "Include Luminaire Tilt Information");
    EXPECT_FALSE(find<QCheckBox>("chkIncludeTilt")->isChecked());
}

TEST_F(Load, placeholderTextsAreLegibleOnADarkPalette)
{
    loadWindow();
    const QPalette light = QApplication::palette();
    QPalette dark(Qt::darkGray, Qt::black);
    dark.setColor(QPalette::PlaceholderText, Qt::black);  // as some desktops' dark palettes have it
    QApplication::setPalette(dark);
    QCoreApplication::processEvents();
    const auto colour = [this] { return find("lmpCmbShape")->palette().color(QPalette::PlaceholderText); };
    EXPECT_EQ(colour().rgb(), QApplication::palette().color(QPalette::Text).rgb());
    QApplication::setPalette(light);
    QCoreApplication::processEvents();
    EXPECT_EQ(colour().rgb(), light.color(QPalette::Text).rgb());
}

TEST_F(Load, labelsOfPageOneAreBuddies)
{
    loadWindow();
    EXPECT_EQ(find<QLabel>("labShape")->buddy(), find("lmpCmbShape"));
    EXPECT_EQ(find<QLabel>("labPTB")->buddy(), find("rdoFeet"));
}

TEST_F(Load, hiddenBoxesExistAndStayHidden)
{
    startWizard();
    for (int index = 0; index <= kPageCount; ++index) {
        window->ShowPage(index);
        for (const char *name : {"txtNewFilename", "txtIESFile"})
            EXPECT_TRUE(find<QLineEdit>(name)->isHidden()) << name;
        for (const char *name : {"txtCmds", "txtFiles"})
            EXPECT_TRUE(find<QPlainTextEdit>(name)->isHidden()) << name;
    }
}

TEST_F(Load, timersAreNamedAndOnlyThePollRuns)
{
    loadWindow();
    EXPECT_EQ(find<QTimer>("tmrDataExchange")->interval(), 100);
    EXPECT_TRUE(find<QTimer>("tmrDataExchange")->isActive());
    EXPECT_EQ(find<QTimer>("tmrDeath")->interval(), 10000);
    EXPECT_FALSE(find<QTimer>("tmrDeath")->isActive());
    window->startDeathTimer();
    EXPECT_TRUE(find<QTimer>("tmrDeath")->isActive());
}

TEST_F(Load, tickOfTheDeathTimerDoesNothing)
{
    loadWindow();
    window->startDeathTimer();
    auto *timer = find<QTimer>("tmrDeath");
    int ticks = 0;
    QObject::connect(timer, &QTimer::timeout, [&ticks] { ++ticks; });
    const std::string before = embedding.transcript;
    timer->setInterval(1);
    ASSERT_TRUE(spinUntil([&ticks] { return ticks > 2; }));
    EXPECT_TRUE(timer->isActive());
    EXPECT_FALSE(closing.isClosing());
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(embedding.transcript, before);
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(Load, thatFailsIsToldToWhoAskedForTheWindow)
{
    store.write("Lumentor_PE", "Sec", "PenwrightPE|7", "START");
    FullStore full;
    const Services broken{full, files, dialogs, wait, embedding, help};
    try {
        window = assembleWizard(state, broken, closing, owner, nullptr);
        FAIL() << "loaded";
    } catch (const RunTimeError &error) {
        EXPECT_EQ(error.number(), 61);
        EXPECT_EQ(error.description(), "/the/store: database or disk is full");
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(dialogs.transcript, "");
    EXPECT_EQ(store.read("Lumentor_PE", "Sec", "PenwrightPE|7"), "START");
}

TEST_F(Load, startClearsTheCandelaPagesState)
{
    loadWindow();
    CandelaState &flags = find<CandelaPage>("nfra4")->flags();
    flags = {true, true, 1};
    window->StartWizard();
    EXPECT_FALSE(flags.GridStarted);
    EXPECT_FALSE(flags.GridReady);
    EXPECT_EQ(flags.plotValue, 0);
}

TEST_F(Load, secondStartDoesWhatTheFirstDid)
{
    startWizard();
    window->ShowPage(kFinishPage);
    window->hide();
    window->StartWizard();
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(shownPage(), kLampPage);
    EXPECT_EQ(caption(), kCaptions[kLampPage]);
}

}  // namespace
}  // namespace penwright::test
