// What a screen reader is told of the window and its warnings.
#include "widgets/WizardTest.h"

namespace penwright::test {
namespace {

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

}  // namespace
}  // namespace penwright::test
