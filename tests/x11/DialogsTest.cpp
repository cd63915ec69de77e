#include <gtest/gtest.h>

#include <algorithm>
#include <QAbstractItemView>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <string>

#include "platform/qt/Closing.h"
#include "platform/qt/OwnerWindow.h"
#include "platform/qt/QtDialogs.h"
#include "support/DialogDriver.h"
#include "support/TempFolder.h"

namespace penwright::test {
namespace {

struct BoxCase {
    int flags;
    QMessageBox::Icon icon;
    std::string buttons;
    int key;
    Answer answer;
};

class Box : public testing::Test {
protected:
    Closing closing;
    OwnerWindow owner;
    QtDialogs dialogs{closing, owner};
};
class BoxRow : public Box, public testing::WithParamInterface<BoxCase> {};
class SaveDialog : public Box {
protected:
    static const SaveNameQuestion &question()
    {
        static const SaveNameQuestion asked{.title = "Save New Photometric File As...",
                                            .filter = "IES files (*.ies)|*.ies;*.IES",
                                            .defaultSuffix = "ies"};
        return asked;
    }

    /// Types a name into the dialog and presses Enter.
    static void typeName(QDialog &dialog, const QString &name)
    {
        dialog.findChild<QLineEdit *>("fileNameEdit")->setText(name);
        QTest::keyClick(dialog.findChild<QLineEdit *>("fileNameEdit"), Qt::Key_Return);
    }

    TempFolder folder;
};

std::string buttonsOf(const QMessageBox &box)
{
    std::string names;
    for (const auto kind : {QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel})
        if (const QAbstractButton *button = box.button(kind))
            names += button->text().remove('&').toStdString() + " ";
    return names;
}

TEST_P(BoxRow, showsItsIconAndButtonsAndAnswersTheKey)
{
    whenDialogIsUp([](QDialog &dialog) {
        const auto &box = dynamic_cast<QMessageBox &>(dialog);
        EXPECT_EQ(box.icon(), GetParam().icon);
        EXPECT_EQ(buttonsOf(box), GetParam().buttons);
        QTest::keyClick(&dialog, static_cast<Qt::Key>(GetParam().key));
    });
    EXPECT_EQ(dialogs.show({.text = "Text", .flags = GetParam().flags}), GetParam().answer);
}

INSTANTIATE_TEST_SUITE_P(
    Flags, BoxRow,
    testing::Values(
        BoxCase{kOkOnly, QMessageBox::NoIcon, "OK ", Qt::Key_Return, Answer::Ok},
        BoxCase{kOkOnly, QMessageBox::NoIcon, "OK ", Qt::Key_Escape, Answer::Ok},
        BoxCase{kCritical, QMessageBox::Critical, "OK ", Qt::Key_Escape, Answer::Ok},
        BoxCase{kOkCancel + kExclamation, QMessageBox::Warning, "OK Cancel ", Qt::Key_Return, Answer::Ok},
        BoxCase{kOkCancel + kExclamation, QMessageBox::Warning, "OK Cancel ", Qt::Key_Escape, Answer::Cancel},
        BoxCase{kYesNo + kExclamation, QMessageBox::Warning, "Yes No ", Qt::Key_Return, Answer::No},
        BoxCase{kYesNo + kExclamation, QMessageBox::Warning, "Yes No ", Qt::Key_Y, Answer::Yes},
        BoxCase{kYesNo + kExclamation, QMessageBox::Warning, "Yes No ", Qt::Key_Escape, Answer::No},
        BoxCase{kInformation + kSystemModal, QMessageBox::Information, "OK ", Qt::Key_Return, Answer::Ok},
        BoxCase{kInformation + kCritical + kSystemModal, QMessageBox::Information, "OK ", Qt::Key_Return, Answer::Ok}));

TEST_F(Box, textAndTitleStandAsTheyAre)
{
    const MessageBox asked{.text = "<b>1</b> & 2 && 3\tx\nhttp://a.b ä", .title = "Error saving a&b <i>"};
    whenDialogIsUp([&](QDialog &dialog) {
        const auto &box = dynamic_cast<QMessageBox &>(dialog);
        EXPECT_EQ(box.text().toStdString(), asked.text);
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle().toStdString(), asked.title);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    EXPECT_EQ(dialogs.show(asked), Answer::Ok);
}

TEST_F(Box, isWideEnoughForItsTitle)
{
    const std::string title = "Error saving rooms/pendant.ies";
    whenDialogIsUp([&](QDialog &dialog) {
        EXPECT_GT(dialog.width(), dialog.fontMetrics().horizontalAdvance(QString::fromStdString(title)) + 100);
        dialog.reject();
    });
    dialogs.show({.text = "No", .title = title});
}

TEST_F(Box, isWideEnoughForItsTextWhateverItsTitle)
{
    const std::string text = "Changes will be lost. Are you sure you want to cancel?";
    for (const char *title : {"", "A title", "A title that is far longer than what the box has to say to its reader"}) {
        whenDialogIsUp([&](QDialog &dialog) {
            const auto *label = dialog.findChild<QLabel *>("qt_msgbox_label");
            EXPECT_GE(label->width(), label->sizeHint().width()) << title;
            EXPECT_GE(label->height(), label->heightForWidth(label->width())) << title;
            EXPECT_TRUE(dialog.rect().contains(QRect(label->mapTo(&dialog, QPoint()), label->size()))) << title;
            dialog.reject();
        });
        dialogs.show({.text = text, .flags = kYesNo + kExclamation, .title = title});
    }
}

TEST_F(Box, aClosedWindowAnswersAsEscapeDoes)
{
    whenDialogIsUp([](QDialog &dialog) { dialog.close(); });
    EXPECT_EQ(dialogs.show({.text = "Text", .flags = kYesNo}), Answer::No);
}

TEST_F(Box, standsOverTheOpenModalDialog)
{
    QWidget wizard;
    wizard.show();
    owner.widget = &wizard;
    whenDialogIsUp([&](QDialog &lower) {
        EXPECT_EQ(lower.parentWidget(), &wizard);
        whenDialogIsUp([&](QDialog &upper) {
            EXPECT_EQ(upper.parentWidget(), &lower);
            QTest::keyClick(&upper, Qt::Key_Return);
        });
        EXPECT_EQ(dialogs.show({.text = "Upper"}), Answer::Ok);
        QTest::keyClick(&lower, Qt::Key_Escape);
    });
    EXPECT_EQ(dialogs.show({.text = "Lower", .flags = kYesNo}), Answer::No);
}

TEST_F(Box, systemModalBlocksEveryWindow)
{
    QWidget wizard;
    wizard.show();
    owner.widget = &wizard;
    const auto modalityOf = [this](int flags) {
        Qt::WindowModality seen = Qt::NonModal;
        whenDialogIsUp([&](QDialog &dialog) {
            seen = dialog.windowModality();
            dialog.reject();
        });
        dialogs.show({.text = "Text", .flags = flags});
        return seen;
    };
    EXPECT_EQ(modalityOf(kOkOnly), Qt::WindowModal);
    EXPECT_EQ(modalityOf(kSystemModal), Qt::ApplicationModal);
}

TEST_F(Box, isDismissedByClosingWhateverWasPressed)
{
    whenDialogIsUp([this](QDialog &dialog) {
        closing.begin();
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    EXPECT_EQ(dialogs.show({.text = "Text", .flags = kYesNo}), Answer::Dismissed);
}

TEST_F(Box, returnsAtOnceWhileClosing)
{
    closing.begin();
    EXPECT_EQ(dialogs.show({.text = "Text"}), Answer::Dismissed);
    EXPECT_EQ(dialogs.chooseSaveName(SaveNameQuestion{}), std::nullopt);
}

TEST_F(SaveDialog, isTheToolkitsOwnAndAsksAsTold)
{
    whenDialogIsUp([](QDialog &dialog) {
        auto &save = dynamic_cast<QFileDialog &>(dialog);
        EXPECT_EQ(save.objectName(), "commonDialog");
        EXPECT_EQ(save.windowTitle().toStdString(), question().title);
        EXPECT_EQ(save.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(save.defaultSuffix(), "ies");
        EXPECT_EQ(save.findChild<QComboBox *>("fileTypeCombo")->currentText(), "IES files (*.ies)");
        EXPECT_EQ(save.directory().absolutePath(), QDir::homePath());
        EXPECT_TRUE(save.findChild<QLineEdit *>("fileNameEdit")->hasFocus());
        save.reject();
    });
    EXPECT_EQ(dialogs.chooseSaveName(question()), std::nullopt);
}

TEST_F(SaveDialog, namesOfThePlacesAreNotCutOff)
{
    whenDialogIsUp([](QDialog &dialog) {
        const auto *places = dialog.findChild<QListView *>("sidebar");
        EXPECT_GE(places->viewport()->width(), std::min(places->sizeHintForColumn(0), 190));
        dialog.reject();
    });
    dialogs.chooseSaveName(question());
}

TEST_F(SaveDialog, addsTheSuffixAndReturnsToTheFolderUsedLast)
{
    whenDialogIsUp([this](QDialog &dialog) { typeName(dialog, QString::fromStdString(folder.file("lamp"))); });
    EXPECT_EQ(dialogs.chooseSaveName(question()), folder.file("lamp.ies"));
    whenDialogIsUp([](QDialog &dialog) { typeName(dialog, "other.IES"); });
    EXPECT_EQ(dialogs.chooseSaveName(question()), folder.file("other.IES"));
}

TEST_F(SaveDialog, addsTheSuffixBehindAPointThatBeginsNone)
{
    std::ofstream(folder.file("there.5K")) << "x";
    const std::pair<const char *, const char *> kNames[]{{"RT5-3.5K", "RT5-3.5K.ies"},
                                                         {"there.5K", "there.5K"},
                                                         {"a.b-c", "a.b-c.ies"},
                                                         {"plain.txt", "plain.txt"},
                                                         {"x.Ies", "x.Ies"}};
    for (const auto &[typed, named] : kNames) {
        const QString name = QString::fromStdString(folder.file(typed));
        whenDialogIsUp([&name](QDialog &dialog) { typeName(dialog, name); });
        EXPECT_EQ(dialogs.chooseSaveName(question()), folder.file(named));
    }
}

TEST_F(SaveDialog, offersTheNameChosenLastSelected)
{
    const auto offered = [this] {
        std::string name;
        whenDialogIsUp([&](QDialog &dialog) {
            const auto *line = dialog.findChild<QLineEdit *>("fileNameEdit");
            name = line->text().toStdString();
            EXPECT_EQ(line->selectedText(), line->text());
            dialog.reject();
        });
        EXPECT_EQ(dialogs.chooseSaveName(question()), std::nullopt);
        return name;
    };
    EXPECT_EQ(offered(), "");
    whenDialogIsUp([this](QDialog &dialog) { typeName(dialog, QString::fromStdString(folder.file("lamp"))); });
    dialogs.chooseSaveName(question());
    EXPECT_EQ(offered(), "lamp.ies");
    whenDialogIsUp([this](QDialog &dialog) { typeName(dialog, QString::fromStdString(folder.file("none/lamp.ies"))); });
    dialogs.chooseSaveName(question());
    EXPECT_EQ(offered(), folder.file("none/lamp.ies"));
}

TEST_F(SaveDialog, offersWhatIsProposedAndForEachSuffixTheNameOfItsOwn)
{
    const auto offered = [this](const SaveNameQuestion &asked) {
        std::string name;
        whenDialogIsUp([&](QDialog &dialog) {
            name = dialog.findChild<QLineEdit *>("fileNameEdit")->text().toStdString();
            dialog.reject();
        });
        dialogs.chooseSaveName(asked);
        return name;
    };
    const SaveNameQuestion picture{"Save Picture", "SVG pictures (*.svg)|*.svg", "svg", {}};
    SaveNameQuestion proposed = picture;
    proposed.proposedName = "plot-H0.svg";
    whenDialogIsUp([this](QDialog &dialog) { typeName(dialog, QString::fromStdString(folder.file("lamp"))); });
    dialogs.chooseSaveName(question());
    EXPECT_EQ(offered(picture), "");
    EXPECT_EQ(offered(proposed), "plot-H0.svg");
    whenDialogIsUp([this](QDialog &dialog) { typeName(dialog, QString::fromStdString(folder.file("mine"))); });
    dialogs.chooseSaveName(proposed);
    EXPECT_EQ(offered(picture), "mine.svg");
    EXPECT_EQ(offered(question()), "lamp.ies");
}

TEST_F(SaveDialog, asksNothingBeforeReplacing)
{
    std::ofstream(folder.file("there.ies")) << "old";
    whenDialogIsUp([this](QDialog &dialog) { typeName(dialog, QString::fromStdString(folder.file("there.ies"))); });
    EXPECT_EQ(dialogs.chooseSaveName(question()), folder.file("there.ies"));
    EXPECT_EQ(contentOf(folder.file("there.ies")), "old");
}

TEST_F(SaveDialog, cancelledGivesNoName)
{
    whenDialogIsUp([this](QDialog &dialog) {
        dialog.findChild<QLineEdit *>("fileNameEdit")->setText(QString::fromStdString(folder.file("lamp")));
        dialog.findChild<QDialogButtonBox *>("buttonBox")->button(QDialogButtonBox::Cancel)->click();
    });
    EXPECT_EQ(dialogs.chooseSaveName(question()), std::nullopt);
}

TEST_F(SaveDialog, acceptedWithoutANameGivesTheEmptyName)
{
    whenDialogIsUp([](QDialog &dialog) { dialog.done(QDialog::Accepted); });
    EXPECT_EQ(dialogs.chooseSaveName(question()), "");
}

TEST_F(SaveDialog, hidesFilesOfOtherKindsInEitherCase)
{
    for (const char *name : {"a.ies", "B.IES", "c.txt"})
        std::ofstream(folder.file(name)) << "x";
    whenDialogIsUp([this](QDialog &dialog) {
        auto &save = dynamic_cast<QFileDialog &>(dialog);
        save.setDirectory(QString::fromStdString(folder.path().string()));
        auto *list = save.findChild<QAbstractItemView *>("listView");
        const auto listed = [list] {
            QStringList names;
            for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
                names << list->model()->index(row, 0, list->rootIndex()).data().toString();
            names.sort();
            return names;
        };
        EXPECT_TRUE(spinUntil([&] {
            return listed() == QStringList({"B.IES", "a.ies"});
        })) << listed().join(",").toStdString();
        save.reject();
    });
    dialogs.chooseSaveName(question());
}

}  // namespace
}  // namespace penwright::test
