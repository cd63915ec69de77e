#include "platform/qt/QtDialogs.h"

#include <algorithm>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QRegularExpression>

#include "platform/qt/Closing.h"
#include "platform/qt/OwnerWindow.h"

namespace penwright {
namespace {

QMessageBox::Icon iconOf(int flags)
{
    // Information comes first: a box that asks for information and critical together shows the information icon.
    if (flags & kInformation)
        return QMessageBox::Information;
    if ((flags & kExclamation) == kExclamation)
        return QMessageBox::Warning;
    return flags & kCritical ? QMessageBox::Critical : QMessageBox::NoIcon;
}

void setButtons(QMessageBox &box, int flags)
{
    if (flags & kYesNo) {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::No);  // an Enter too many loses nothing
    } else if (flags & kOkCancel) {
        box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
        box.setDefaultButton(QMessageBox::Ok);
    } else {
        box.setStandardButtons(QMessageBox::Ok);
    }
}

Answer answerOf(int button)
{
    switch (button) {
        case QMessageBox::Ok:
            return Answer::Ok;
        case QMessageBox::Cancel:
            return Answer::Cancel;
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        default:
            return Answer::Dismissed;
    }
}

/// "Pictures|*.a;*.b" as the toolkit writes it: "Pictures (*.a *.b)".
QString nameFilter(const std::string &filter)
{
    const QString text = QString::fromStdString(filter);
    return text.section('|', 0, 0) + " (" + text.section('|', 1).replace(';', ' ') + ")";
}

/// The toolkit gives the list of places too little room and scrolls it sideways.
void widenPlaces(QFileDialog &dialog)
{
    constexpr int kMostWidth = 200;
    auto *places = dialog.findChild<QListView *>("sidebar");
    if (!places)
        return;
    const int needed = places->sizeHintForColumn(0) + 2 * places->frameWidth() + places->spacing();
    places->setMinimumWidth(std::min(needed, kMostWidth));
    places->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    places->setTextElideMode(Qt::ElideMiddle);
}

/// A box is only as wide as its text, and its title is cut off when that is longer.
void makeRoomForTitle(QMessageBox &box)
{
    constexpr int kFrameButtons = 160;
    constexpr int kMostWidth = 560;
    auto *grid = qobject_cast<QGridLayout *>(box.layout());
    if (!grid)
        return;
    const int width = std::min(kMostWidth, box.fontMetrics().horizontalAdvance(box.windowTitle()) + kFrameButtons);
    // Beside the text and not of it: a least width set on the text would stand for the one that the text needs.
    grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

/// Offers the name chosen last, selected, so that typing replaces it; with its folder where that cannot be shown.
void offerName(QFileDialog &dialog, const QFileInfo &name)
{
    auto *line = dialog.findChild<QLineEdit *>("fileNameEdit");
    if (!line || name.fileName().isEmpty())
        return;
    line->setText(name.dir().exists() ? name.fileName() : name.filePath());
    line->selectAll();
}

/// The toolkit takes whatever stands behind the last point for a suffix, and catalogue numbers hold points too: here
/// one to four letters are a suffix, and a file that is there keeps the name that it has.
QString withSuffix(const QString &path, const QString &suffix)
{
    static const QRegularExpression kSuffix("^[A-Za-z]{1,4}$");
    const QFileInfo file(path);
    if (suffix.isEmpty() || file.suffix().isEmpty() || kSuffix.match(file.suffix()).hasMatch() || file.exists())
        return path;
    return path + '.' + suffix;
}

/// The folder to begin in: that of the file chosen last while it is there, else the user's home.
QString folderOf(const QFileInfo &last)
{
    return last.dir().exists() && !last.filePath().isEmpty() ? last.absolutePath() : QDir::homePath();
}

/// A dialog blocks every window of the program unless it is told to block the one it stands over.
void blockParentAlone(QDialog &dialog)
{
    if (dialog.parentWidget())
        dialog.setWindowModality(Qt::WindowModal);
}

}  // namespace

QWidget *QtDialogs::dialogParent() const
{
    QWidget *modal = QApplication::activeModalWidget();
    return modal ? modal : m_owner.widget.data();
}

Answer QtDialogs::show(const MessageBox &box)
{
    if (m_closing.isClosing())
        return Answer::Dismissed;
    QMessageBox message(dialogParent());
    message.setTextFormat(Qt::PlainText);
    message.setWindowTitle(QString::fromStdString(box.title));
    message.setText(QString::fromStdString(box.text));
    message.setIcon(iconOf(box.flags));
    setButtons(message, box.flags);
    makeRoomForTitle(message);
    if (!(box.flags & kSystemModal))
        blockParentAlone(message);
    const Answer answer = answerOf(message.exec());
    return m_closing.isClosing() ? Answer::Dismissed : answer;
}

std::optional<std::string> QtDialogs::chooseSaveName(const SaveNameQuestion &question)
{
    if (m_closing.isClosing())
        return std::nullopt;
    const QFileInfo last(QString::fromStdString(m_lastName));
    QFileDialog dialog(dialogParent(), QString::fromStdString(question.title), folderOf(last));
    dialog.setObjectName("commonDialog");
    dialog.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite |
                      QFileDialog::HideNameFilterDetails);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilter(nameFilter(question.filter));
    dialog.setDefaultSuffix(QString::fromStdString(question.defaultSuffix));
    widenPlaces(dialog);
    offerName(dialog,
              QFileInfo(QString::fromStdString(question.proposedName.empty() ? m_lastNames[question.defaultSuffix]
                                                                             : question.proposedName)));
    blockParentAlone(dialog);
    if (dialog.exec() != QDialog::Accepted || m_closing.isClosing())
        return std::nullopt;
    // Where no name was given the toolkit answers with the folder.
    const QString chosen = dialog.selectedFiles().value(0);
    if (QFileInfo(chosen).isDir())
        return std::string();
    m_lastName = withSuffix(chosen, QString::fromStdString(question.defaultSuffix)).toStdString();
    m_lastNames[question.defaultSuffix] = m_lastName;
    return m_lastName;
}

std::optional<std::string> QtDialogs::chooseOpenName(const OpenNameQuestion &question)
{
    if (m_closing.isClosing())
        return std::nullopt;
    const QFileInfo last(QString::fromStdString(m_lastOpened));
    QFileDialog dialog(dialogParent(), QString::fromStdString(question.title), folderOf(last));
    dialog.setObjectName("openDialog");
    dialog.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::HideNameFilterDetails);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilter(nameFilter(question.filter));
    widenPlaces(dialog);
    blockParentAlone(dialog);
    if (dialog.exec() != QDialog::Accepted || m_closing.isClosing())
        return std::nullopt;
    m_lastOpened = dialog.selectedFiles().value(0).toStdString();
    return m_lastOpened;
}

}  // namespace penwright
