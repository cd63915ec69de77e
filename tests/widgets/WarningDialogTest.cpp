#include "widgets/WizardTest.h"
#include "wizard/WarningDialog.h"

namespace penwright::test {
namespace {

class Warning : public WizardTest {
protected:
    void SetUp() override { startWizard(); }

    /// Shows the dialog and does something with it once it is open; false when it stays open for long.
    bool showAnd(const std::function<void(WarningDialog &)> &act)
    {
        bool ended = true;
        QTimer::singleShot(0, window.get(), [&] { act(window->dlgWarn()); });
        QTimer bound;
        QObject::connect(&bound, &QTimer::timeout, [&] {
            ended = false;
            window->dlgWarn().reject();
        });
        bound.start(10000);
        window->dlgWarn().showModal();
        return ended;
    }
    QPlainTextEdit *text() { return find<QPlainTextEdit>("Text1"); }
};

TEST_F(Warning, isNamedAndShowsTheWholeListAtOnce)
{
    WarningDialog &dialog = window->dlgWarn();
    EXPECT_TRUE(dialog.Clean());
    dialog.Add("Watts is empty.");
    dialog.Add("Width is not a number.");
    EXPECT_FALSE(dialog.Clean());
    EXPECT_TRUE(showAnd([&](WarningDialog &open) {
        EXPECT_EQ(QApplication::activeModalWidget(), &open);
        EXPECT_EQ(open.objectName(), "dlgWarn");
        EXPECT_EQ(open.windowTitle(), "Data incomplete!");
        EXPECT_EQ(text()->toPlainText(), "Watts is empty.\nWidth is not a number.\n");
        EXPECT_TRUE(text()->isReadOnly());
        QTest::mouseClick(find("OKButton"), Qt::LeftButton);
    }));
    EXPECT_EQ(dialog.list().text(), "Watts is empty.\r\nWidth is not a number.\r\n");
    dialog.Clear();
    EXPECT_TRUE(dialog.Clean());
}

TEST_F(Warning, enterAndEscapeCloseItWhereverTheFocusIs)
{
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape})
        for (const std::string focus : {"OKButton", "Text1"})
            EXPECT_TRUE(showAnd([&](WarningDialog &) {
                find(focus)->setFocus();
                QTest::keyClick(find(focus), key);
            })) << focus
                << key;
}

TEST_F(Warning, canBeResized)
{
    window->dlgWarn().resize(700, 500);
    EXPECT_EQ(window->dlgWarn().size(), QSize(700, 500));
    EXPECT_TRUE(window->dlgWarn().isSizeGripEnabled());
}

TEST_F(Warning, unloadingDismissesItAndShowsItNoMore)
{
    EXPECT_TRUE(showAnd([&](WarningDialog &) { closing.begin(); }));
    bool wasShown = false;
    QTimer::singleShot(0, window.get(), [&] { wasShown = window->dlgWarn().isVisible(); });
    window->dlgWarn().showModal();
    QCoreApplication::processEvents();
    EXPECT_FALSE(wasShown);
}

}  // namespace
}  // namespace penwright::test
