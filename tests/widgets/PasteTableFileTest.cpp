// Tables that come from files.
#include <atomic>
#include <chrono>
#include <fstream>
#include <thread>

#include "widgets/PasteTableTest.h"

namespace penwright::test {
namespace {

class PasteTableFile : public PasteTableTest {
protected:
    void chooseFile(const std::string &path)
    {
        dialogs.names.push_back(path);
        QTest::mouseClick(&in("chooseFile"), Qt::LeftButton);
    }

    /// What is said of a file, once it is read.
    std::string problemOfFile(const std::string &path, const FileContent &content)
    {
        files.contents[path] = content;
        std::string said;
        open(kTable, [&](PasteTableDialog &) {
            chooseFile(path);
            EXPECT_TRUE(spinUntil([&] { return problem() != "The file is being read."; }));
            said = isOffered() ? "" : problem();
            leave();
        });
        return said;
    }
};

TEST_F(PasteTableFile, isReadWhateverItsBytesAre)
{
    openPageFive();
    const std::string latin1 = "Winkel \xB0\t0\xB0\t90\xB0\n0\xB0\t5\t5\n90\xB0\t4\t3\n";
    std::string utf16 = "\xFF\xFE";
    for (const char c : kTable)
        utf16 += {c, '\0'};
    for (const std::string &bytes : {kTable, "\xEF\xBB\xBF" + kTable, latin1, utf16})
        EXPECT_EQ(problemOfFile("/tables/a.csv", {0, bytes}), "") << bytes;
    EXPECT_NE(dialogs.transcript.find("[open|Paste Table From File|Tables as text (*.csv, *.tsv, *.txt)|"
                                      "*.csv;*.tsv;*.txt]"),
              std::string::npos);
}

TEST_F(PasteTableFile, isTakenAsTheClipboardIs)
{
    openPageFive();
    files.contents["/tables/a.csv"] = {0, kTable};
    open("", [&](PasteTableDialog &dialog) {
        chooseFile("/tables/a.csv");
        ASSERT_TRUE(spinUntil([&] { return isOffered(); }));
        EXPECT_EQ(in<QLabel>("tableSource").text(), "From a.csv");
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(shown("cdaGridCd", 2, 2), "650.25");
}

TEST_F(PasteTableFile, thatCannotBeReadIsToldInASentence)
{
    openPageFive();
    EXPECT_EQ(problemOfFile("/tables/a.csv", {ENOENT, {}}), "\"a.csv\" is not there any more.");
    EXPECT_EQ(problemOfFile("/tables/a.csv", {EFBIG, {}}),
              "\"a.csv\" has more than 100 MB, far more than a table can have.");
    EXPECT_EQ(problemOfFile("/tables/a.csv", {ESTALE, {}}),
              "\"a.csv\" was changed while it was read. Choose it again.");
    EXPECT_EQ(problemOfFile("/tables/a.csv", {0, {}}), "\"a.csv\" is empty.");
    EXPECT_EQ(problemOfFile("/tables/a.csv", {0, std::string("PK\0\1 12\t13", 10)}).substr(0, 58),
              "The text has characters with the code 0: it is no table. 1");
}

TEST_F(PasteTableFile, choosingNoneChangesNothing)
{
    openPageFive();
    open(kTable, [&](PasteTableDialog &) {
        dialogs.names.push_back(std::nullopt);
        QTest::mouseClick(&in("chooseFile"), Qt::LeftButton);
        EXPECT_TRUE(isOffered());
        leave();
    });
}

/// A disk that answers when it is told to.
struct SlowFiles : TextFiles {
    int replace(const std::string &, std::string_view) override { return 0; }
    FileContent read(const std::string &, std::size_t, const std::function<bool(double)> &goOn) override
    {
        while (goOn(0.25))
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        hasEnded = true;
        return {ECANCELED, {}};
    }
    std::atomic<bool> hasEnded = false;
};

/// The dialog by itself, over a disk that is slow.
class PasteTableSlowFile : public PasteTableFile {
protected:
    void SetUp() override
    {
        PasteTableFile::SetUp();
        dialogUp = &dialog;
        dialog.show();
        chooseFile("/tables/a.csv");
    }

    SlowFiles slow;
    PasteTableDialog dialog{
        {.judge = [](const TableContent &, double) { return TableVerdict{true}; }}, dialogs, slow, closing, nullptr};
};

TEST_F(PasteTableSlowFile, showsHowFarItIsReadAndEndsWithCancel)
{
    auto &progress = in<QProgressBar>("tableProgress");
    EXPECT_TRUE(spinUntil([&] { return progress.isVisible() && progress.value() == 250; }));
    EXPECT_FALSE(isOffered());
    QTest::mouseClick(&in("cancelButton"), Qt::LeftButton);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(spinUntil([&] { return slow.hasEnded.load(); }));
}

TEST_F(PasteTableSlowFile, isReadNoMoreOnceThereIsAnotherText)
{
    QGuiApplication::clipboard()->setText(QString::fromStdString(kTable));
    QTest::mouseClick(&in("takeClipboard"), Qt::LeftButton);
    EXPECT_TRUE(isOffered());
    EXPECT_TRUE(spinUntil([&] { return slow.hasEnded.load(); }));
    EXPECT_TRUE(isOffered());
    EXPECT_FALSE(in("tableProgress").isVisible());
}

TEST_F(PasteTableFile, chosenInTheToolkitsDialogIsRead)
{
    useRealDialogs();
    window.reset();
    startWizard();
    fillPageOne();
    openPageFive();
    const std::string path = folder.file("a table.csv");
    std::ofstream(path) << "for the chooser";
    files.contents[path] = {0, kTable};
    open("", [&](PasteTableDialog &) {
        whenDialogIsUp([&](QDialog &chooser) {
            EXPECT_EQ(chooser.windowTitle(), "Paste Table From File");
            auto *name = chooser.findChild<QLineEdit *>("fileNameEdit");
            name->setText(QString::fromStdString(path));
            QTest::keyClick(name, Qt::Key_Return);
        });
        QTest::mouseClick(&in("chooseFile"), Qt::LeftButton);
        EXPECT_TRUE(spinUntil([&] { return isOffered(); })) << problem();
        EXPECT_EQ(dialogUp->focusWidget(), &in("tablePreview"));
        leave();
    });
}

TEST_F(PasteTableFile, chooserAndDialogEndWithTheProgram)
{
    useRealDialogs();
    window.reset();
    startWizard();
    fillPageOne();
    openPageFive();
    bool wasChooser = false;
    const auto endOverTheChooser = [&](PasteTableDialog &) {
        whenDialogIsUp([&](QDialog &chooser) {
            wasChooser = chooser.objectName() == "openDialog";
            closing.begin();
        });
        QTest::mouseClick(&in("chooseFile"), Qt::LeftButton);
    };
    QTimer::singleShot(0, window.get(), [&] { open(kTable, endOverTheChooser); });
    EXPECT_EQ(runUntilEnd(), 0);
    EXPECT_TRUE(wasChooser);
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(PasteTableFile, longTextIsSeenByItsFirstPartUntilAllOfItIsRead)
{
    openPageFive();
    std::string text = "Gamma\tC0\n";
    for (int v = 0; v <= 30000; ++v)
        text += std::to_string(v * 0.003) + "\t" + std::to_string(1'000'000 + v) + "\n";
    files.contents["/tables/long.txt"] = {0, text + std::string(20, '\n') + "90\tend\n"};
    open(text, [&](PasteTableDialog &) {
        EXPECT_EQ(problem(), "The whole text is being read.");
        EXPECT_FALSE(isOffered());
        EXPECT_GT(in<QTableView>("tablePreview").model()->rowCount(), 1000);
        EXPECT_TRUE(spinUntil([&] { return problem() != "The whole text is being read."; }));
        EXPECT_EQ(problem(), "Read: 30001 vertical angles and 1 horizontal angle. A list holds 1000 at most.");
        EXPECT_EQ(in<QTableView>("tablePreview").model()->rowCount(), 30001);
        chooseFile("/tables/long.txt");
        EXPECT_TRUE(spinUntil([&] { return problem().starts_with("Line "); }));
        EXPECT_EQ(in<QTableView>("tablePreview").currentIndex().data().toString(), "end");
        leave();
    });
}

}  // namespace
}  // namespace penwright::test
