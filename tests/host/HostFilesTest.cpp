#include "host/BoxText.h"
#include "host/HostWindowBench.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>

#include "core/IesText.h"
#include "hostbench/SampleLuminaire.h"
#include "support/SpinUntil.h"

namespace penwright::test {
namespace {

class HostFilesTest : public HostWindowTest {
protected:
    QString write(const std::string &name, const std::string &text)
    {
        std::ofstream(m_given.file(name), std::ios::binary) << text;
        return QString::fromStdString(m_given.file(name));
    }

    /// Opens files, which are held once they are read.
    void openUntilHeld(const QStringList &paths, const std::function<bool()> &isHeld)
    {
        m_window->openFiles(paths);
        ASSERT_TRUE(spinUntil(isHeld));
    }

    auto areHeld(int count) const
    {
        return [this, count] { return m_window->files().count() == count; };
    }

    TempFolder m_given;  ///< what others have written

    QListWidget *list() const { return m_window->findChild<QListWidget *>("fileList"); }
};

const std::string kSample = iesFileText(sampleLuminaire());

TEST_F(HostFilesTest, filesOfTheDiskAreHeldTheLastOneSelected)
{
    openUntilHeld({write("one.ies", kSample), write("two.IES", kSample)}, areHeld(2));
    EXPECT_EQ(list()->currentRow(), 1);
    EXPECT_EQ(list()->item(0)->text(), "one.ies");
    EXPECT_TRUE(m_window->files().at(0).isSaved);
    EXPECT_TRUE(m_window->close());
}

TEST_F(HostFilesTest, theButtonOpensWhatIsChosen)
{
    const QString path = write("one.ies", kSample);
    whenDialogIsUp([&](QDialog &dialog) {
        auto &open = dynamic_cast<QFileDialog &>(dialog);
        EXPECT_EQ(open.fileMode(), QFileDialog::ExistingFiles);
        auto *line = open.findChild<QLineEdit *>("fileNameEdit");
        line->setText(path);
        QTest::keyClick(line, Qt::Key_Return);
    });
    QTest::mouseClick(button("openFiles"), Qt::LeftButton);
    ASSERT_TRUE(spinUntil(areHeld(1)));
    EXPECT_EQ(QString::fromStdString(m_window->files().at(0).record.Filename), path);
}

TEST_F(HostFilesTest, theSameFileIsHeldOnceAndAnew)
{
    openUntilHeld({write("one.ies", kSample)}, areHeld(1));
    PhotometricRecord other = sampleLuminaire();
    other.InputWatts = 77;
    openUntilHeld({write("one.ies", iesFileText(other))},
                  [this] { return m_window->files().at(0).record.InputWatts == 77; });
    EXPECT_EQ(m_window->files().count(), 1);
}

TEST_F(HostFilesTest, whatCannotBeOpenedIsToldInOneBoxAndTheOthersAreHeld)
{
    const QString folder = QString::fromStdString(m_given.path().string());
    const QStringList paths{folder + "/none.ies", folder, write("cut.ies", "IESNA:LM-63-2002\nTILT=NONE\n1 2\n"),
                            write("good.ies", kSample)};
    const QStringList lines = boxTextOf([&] { m_window->openFiles(paths); }).split('\n');
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[0], "none.ies was not opened: There is no such file.");
    EXPECT_TRUE(lines[1].endsWith(" was not opened: This is no file that can be read."));
    EXPECT_TRUE(lines[2].startsWith("cut.ies: Line ")) << qPrintable(lines[2]);
    EXPECT_EQ(m_window->files().count(), 1);
}

TEST_F(HostFilesTest, theTwentySixthIsRefused)
{
    for (int i = 0; i < 25; ++i)
        m_window->addFile({sampleLuminaire(), false, {}});
    const QString path = write("more.ies", kSample);
    EXPECT_EQ(boxTextOf([&] { m_window->openFiles({path}); }),
              "more.ies was not opened: there is room for 25 files, those of wizards at work among them.");
    EXPECT_EQ(m_window->files().count(), 25);
}

TEST_F(HostFilesTest, aFileOfTheDiskLeavesRoomForWhatAWizardBrings)
{
    for (int i = 0; i < 24; ++i)
        m_window->addFile({sampleLuminaire(), false, {}});
    m_window->startTool();
    ASSERT_TRUE(waitNoted("START"));
    const QString path = write("more.ies", kSample);
    EXPECT_NE(boxTextOf([&] { m_window->openFiles({path}); }), "");
    EXPECT_EQ(m_window->files().count(), 24);
}

TEST_F(HostFilesTest, saveAsProposesTheCatalogNumber)
{
    m_window->addFile({sampleLuminaire(), false, {}});
    const std::string path = m_folder.file("DI-2x54-PA.ies");
    whenDialogIsUp([&](QDialog &dialog) {
        auto &save = dynamic_cast<QFileDialog &>(dialog);
        auto *line = save.findChild<QLineEdit *>("fileNameEdit");
        EXPECT_EQ(line->text(), "DI-2x54-PA.ies");
        EXPECT_EQ(line->selectedText(), line->text());
        save.setDirectory(QString::fromStdString(m_folder.path().string()));
        line->setText("DI-2x54-PA.ies");
        QTest::keyClick(line, Qt::Key_Return);
    });
    button("saveAs")->click();
    EXPECT_EQ(contentOf(path), kSample);
    EXPECT_TRUE(m_window->files().at(0).isSaved);
}

TEST_F(HostFilesTest, aWizardAtWorkIsClosedOnRequestOnly)
{
    m_window->startTool();
    ASSERT_TRUE(waitNoted("START"));
    const QString question = "1 wizard is open and has not finished its file. Close all the same?";
    answer(question, "Cancel");
    EXPECT_FALSE(m_window->close());
    EXPECT_EQ(m_window->toolCount(), 1);
    EXPECT_FALSE(noted().contains("CLOSE"));
    answer(question, "Close Without Saving");
    m_window->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !m_window->isVisible(); }, 20'000));
    EXPECT_TRUE(noted().contains("CLOSE"));
}

TEST_F(HostFilesTest, filesAndWizardsAreAskedAboutInOneQuestion)
{
    m_window->addFile({sampleLuminaire(), false, {}});
    m_window->startTool();
    m_window->startTool();
    answer("1 file is not saved. 2 wizards are open and have not finished their files. Close all the same?", "Cancel");
    EXPECT_FALSE(m_window->close());
}

}  // namespace
}  // namespace penwright::test
