#include "host/HostWindowBench.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTabWidget>

#include "hostbench/LogPanel.h"
#include "hostbench/SampleLuminaire.h"
#include "support/SpinUntil.h"

namespace penwright::test {
namespace {

class HostLayoutTest : public HostWindowTest {};

TEST_F(HostLayoutTest, aDisabledButtonSaysWhatItLacks)
{
    const auto lacks = [this](const char *name) { return button(name)->isEnabled() ? "" : button(name)->toolTip(); };
    EXPECT_EQ(lacks("sendClose"), "No tool is running to send commands to");
    EXPECT_EQ(lacks("sendDataChanged"), "No tool is running to send commands to");
    EXPECT_EQ(lacks("saveAs"), "No file is selected");
    EXPECT_EQ(lacks("remove"), "No file is selected");
    m_window->startTool();
    EXPECT_EQ(lacks("sendClose"), "");
    EXPECT_EQ(lacks("sendDeleteFile"), "Select a file that the tool is to be told of");
    m_window->addFile({sampleLuminaire(), true, {}});
    EXPECT_EQ(lacks("sendDeleteFile"), "");
    EXPECT_EQ(lacks("saveAs"), "The selected file is saved already");
    m_window->findChild<QTabWidget *>("tabs")->setCurrentIndex(0);
    EXPECT_EQ(lacks("sendDeleteFile"), "Choose the tab of a tool to send it commands");
    m_window->resize(1240, 860);
    EXPECT_EQ(m_window->findChild<QLabel *>("hint")->text(), "Choose the tab of a tool to send it commands");
    EXPECT_EQ(lacks("newFile"), "");
    answer("1 wizard is open and has not finished its file. Close all the same?", "Close Without Saving");
    m_window->close();
    EXPECT_EQ(lacks("newFile"), "The window is closing");
}

TEST_F(HostLayoutTest, inANarrowWindowAToolGetsTheRoomOfTheFiles)
{
    const auto isShown = [this] { return m_window->findChild<QWidget *>("fileList")->isVisible(); };
    m_window->resize(788, 560);
    EXPECT_TRUE(isShown());
    m_window->startTool();
    EXPECT_FALSE(isShown());
    button("showFiles")->click();
    EXPECT_TRUE(isShown());
    auto *tabs = m_window->findChild<QTabWidget *>("tabs");
    tabs->setCurrentIndex(0);
    tabs->setCurrentIndex(1);
    EXPECT_FALSE(isShown());
    m_window->resize(1240, 860);
    EXPECT_TRUE(isShown());
}

TEST_F(HostLayoutTest, theLogUnfoldsAtItsNewestLine)
{
    auto *log = m_window->findChild<QTreeWidget *>("linkLog");
    auto *panel = m_window->findChild<LogPanel *>();
    panel->setFolded(true);
    for (int i = 0; i < 200; ++i)
        panel->append("Tool 1", ToolRun::Line::Note, QString::number(i));
    panel->setFolded(false);
    EXPECT_TRUE(spinUntil([&] {
        return log->verticalScrollBar()->maximum() > 0 &&
               log->verticalScrollBar()->value() == log->verticalScrollBar()->maximum();
    }));
}

TEST_F(HostLayoutTest, theLogFoldsAwayAndShowsItsNewestLine)
{
    ToolTab *tab = m_window->startTool();
    ASSERT_TRUE(waitNoted("START"));
    const auto *log = m_window->findChild<QTreeWidget *>("linkLog");
    const auto *newest = m_window->findChild<QLabel *>("newestLine");
    auto *fold = m_window->findChild<QToolButton *>("foldLog");
    openLog();
    const int before = tab->area().height();
    fold->click();
    EXPECT_FALSE(log->isVisible());
    EXPECT_TRUE(newest->isVisible());
    EXPECT_TRUE(newest->text().endsWith("Tool 1 to tool \u2192 START")) << qPrintable(newest->text());
    EXPECT_TRUE(QTest::qWaitFor([&] { return tab->area().height() > before + 60; }, 20'000));
    fold->click();
    EXPECT_TRUE(log->isVisible());
    EXPECT_FALSE(newest->isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return tab->area().height() == before; }, 20'000));
}

TEST_F(HostLayoutTest, itsListsAndTextFollowThePalette)
{
    const auto background = [this](const char *name) {
        const auto *area = m_window->findChild<QAbstractScrollArea *>(name);
        return area->viewport()->grab().toImage().pixelColor(area->viewport()->rect().center()).lightness();
    };
    openLog();
    const QPalette light = QApplication::palette();
    QPalette dark(Qt::darkGray, Qt::black);
    dark.setColor(QPalette::PlaceholderText, Qt::black);  // as some desktops' dark palettes have it
    QApplication::setPalette(dark);
    for (const char *name : {"fileList", "linkLog", "fileText"})
        EXPECT_TRUE(QTest::qWaitFor([&] { return background(name) < 60; }, 20'000)) << name;
    const auto *text = m_window->findChild<QPlainTextEdit *>("fileText");
    EXPECT_GT(text->palette().color(QPalette::PlaceholderText).lightness(), background("fileText") + 150);
    QApplication::setPalette(light);
    for (const char *name : {"fileList", "linkLog", "fileText"})
        EXPECT_TRUE(QTest::qWaitFor([&] { return background(name) > 200; }, 20'000)) << name;
}

}  // namespace
}  // namespace penwright::test
