#include "hostbench/FilePanel.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>

#include "core/StartupState.h"
#include "hostbench/DiskFiles.h"
#include "hostbench/FileNames.h"
#include "hostbench/FileOpening.h"
#include "hostbench/OpeningBar.h"
#include "hostbench/TwoLineDelegate.h"

namespace penwright {

namespace {

const QString kFilter = QStringLiteral("IES files (*.ies *.IES)");

/// Selected, so that typing replaces it.
void offerName(QFileDialog &dialog, const QString &name)
{
    auto *line = dialog.findChild<QLineEdit *>("fileNameEdit");
    if (!line)
        return;
    line->setText(name);
    line->selectAll();
}

}  // namespace

FilePanel::FilePanel(HeldFiles &files, std::shared_ptr<TextFiles> disk, QWidget *parent)
    : QWidget(parent), m_files(files), m_opening(new FileOpening(std::move(disk), this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(makeHeading());
    m_list = new QListWidget;
    m_list->setObjectName("fileList");
    m_list->setAccessibleName(tr("Files that the host holds"));
    m_list->setItemDelegate(new TwoLineDelegate(m_list));
    m_list->setTextElideMode(Qt::ElideMiddle);
    layout->addWidget(m_list);
    m_bar = new OpeningBar;
    layout->addWidget(m_bar);
    layout->addLayout(makeButtons());
    connect(m_list, &QListWidget::currentRowChanged, this, &FilePanel::enableButtons);
    connect(m_list, &QListWidget::currentRowChanged, this, &FilePanel::selectionChanged);
    followOpening();
    showFiles(-1);
}

QLayout *FilePanel::makeHeading()
{
    auto *heading = new QHBoxLayout;
    auto *title = new QLabel(tr("Files"));
    title->setProperty("heading", true);
    m_count = new QLabel;
    m_count->setProperty("quiet", true);
    heading->addWidget(title);
    heading->addStretch();
    heading->addWidget(m_count);
    return heading;
}

QLayout *FilePanel::makeButtons()
{
    auto *buttons = new QHBoxLayout;
    m_open = new QPushButton(tr("Open..."));
    m_open->setObjectName("openFiles");
    m_open->setShortcut(QKeySequence::Open);
    m_open->setToolTip(tr("Reads IES files from disk, to look at them (Ctrl+O)"));
    m_save = new QPushButton(tr("Save As..."));
    m_save->setObjectName("saveAs");
    m_remove = new QPushButton(tr("Remove"));
    m_remove->setObjectName("remove");
    for (QPushButton *button : {m_open, m_save, m_remove})
        buttons->addWidget(button);
    connect(m_open, &QPushButton::clicked, this, &FilePanel::chooseFiles);
    connect(m_save, &QPushButton::clicked, this, &FilePanel::saveSelected);
    connect(m_remove, &QPushButton::clicked, this, &FilePanel::removeSelected);
    return buttons;
}

void FilePanel::followOpening()
{
    connect(m_bar, &OpeningBar::cancelled, m_opening, &FileOpening::stop);
    connect(m_opening, &FileOpening::progressed, m_bar, &OpeningBar::showPart);
    connect(m_opening, &FileOpening::opened, this, &FilePanel::add);
    connect(m_opening, &FileOpening::refused, this, [this](const QString &problem) { m_problems.append(problem); });
    connect(m_opening, &FileOpening::finished, this, &FilePanel::tellProblems);
}

void FilePanel::showFiles(int selected)
{
    {
        const QSignalBlocker blocker(m_list);
        m_list->clear();
        for (int place = 0; place < m_files.count(); ++place) {
            const QString path = QString::fromStdString(m_files.at(place).record.Filename);
            const bool isSaved = m_files.at(place).isSaved;
            auto *item = new QListWidgetItem(isSaved ? QFileInfo(path).fileName() : path, m_list);
            item->setData(TwoLineDelegate::kSecondLine, isSaved ? QFileInfo(path).path() : tr("Not saved yet"));
            item->setToolTip(path);
        }
        m_list->setCurrentRow(selected);
    }
    m_count->setText(tr("%1 of %2").arg(m_files.count()).arg(kMaxFiles));
    enableButtons();
    emit selectionChanged();
}

int FilePanel::selected() const
{
    return m_list->currentRow();
}

void FilePanel::enableButtons()
{
    const bool isAny = selected() >= 0;
    const bool isSaved = isAny && m_files.at(selected()).isSaved;
    m_save->setEnabled(isAny && !isSaved);
    m_save->setToolTip(!isAny    ? tr("No file is selected")
                       : isSaved ? tr("The selected file is saved already")
                                 : tr("Saves the selected file under a name"));
    m_remove->setEnabled(isAny);
    m_remove->setToolTip(isAny ? tr("Takes the selected file off the list; one on disk stays there")
                               : tr("No file is selected"));
}

void FilePanel::chooseFiles()
{
    QFileDialog dialog(this, tr("Open Photometric Files"), m_folder, kFilter + ";;" + tr("All files (*)"));
    dialog.setFileMode(QFileDialog::ExistingFiles);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_folder = dialog.directory().absolutePath();
    open(dialog.selectedFiles());
}

void FilePanel::open(const QStringList &paths)
{
    m_opening->open(paths);
}

void FilePanel::stopOpening()
{
    m_problems.clear();
    m_opening->stop();
}

void FilePanel::add(HeldFile &file)
{
    const QString path = QString::fromStdString(file.record.Filename);
    const int place = m_files.addBesides(std::move(file), m_wizardsAtWork);
    if (place >= 0)
        return showFiles(place);
    m_problems.append(tr("%1 was not opened: there is room for %2 files, those of wizards at work among them.")
                          .arg(QFileInfo(path).fileName())
                          .arg(kMaxFiles));
}

void FilePanel::tellProblems()
{
    // Who has stopped it, or waits for it, goes on with the files.
    if (m_bar->isAncestorOf(QApplication::focusWidget()))
        m_list->setFocus();
    m_bar->hide();
    const QStringList problems = std::exchange(m_problems, {});
    if (problems.isEmpty())
        return;
    QMessageBox box(QMessageBox::Warning, tr("Open Photometric Files"), problems.join('\n'), QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void FilePanel::saveSelected()
{
    const int place = selected();
    QFileDialog dialog(this, tr("Save Photometric File As"), m_folder, kFilter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setDefaultSuffix("ies");
    offerName(dialog, QString::fromStdString(proposedFileName(m_files.at(place).record)));
    if (dialog.exec() != QDialog::Accepted || place >= m_files.count())
        return;
    const QString path = dialog.selectedFiles().value(0);
    m_folder = QFileInfo(path).path();
    const QString reason = writeDiskFile(path, m_files.at(place).record);
    if (!reason.isEmpty()) {
        QMessageBox::warning(this, tr("Save Photometric File As"), tr("%1 was not saved: %2").arg(path, reason));
        return;
    }
    m_files.setSaved(place, path.toStdString());
    showFiles(place);
}

void FilePanel::removeSelected()
{
    const int place = selected();
    const HeldFile &file = m_files.at(place);
    const QString name = QString::fromStdString(file.record.Filename);
    if (!file.isSaved && !confirms(tr("%1 is not saved. Remove it all the same?").arg(name), tr("Remove")))
        return;
    m_files.remove(place);
    showFiles(std::min(place, m_files.count() - 1));
}

bool FilePanel::mayClose(int wizardsAtWork)
{
    const int count = m_files.unsavedCount();
    QStringList losses;
    if (count > 0)
        losses.append(count == 1 ? tr("1 file is not saved.") : tr("%1 files are not saved.").arg(count));
    if (wizardsAtWork > 0)
        losses.append(wizardsAtWork == 1
                          ? tr("1 wizard is open and has not finished its file.")
                          : tr("%1 wizards are open and have not finished their files.").arg(wizardsAtWork));
    return losses.isEmpty() || confirms(tr("%1 Close all the same?").arg(losses.join(' ')), tr("Close Without Saving"));
}

bool FilePanel::confirms(const QString &question, const QString &loss)
{
    QMessageBox box(QMessageBox::Warning, window()->windowTitle(), question, QMessageBox::Cancel, this);
    const QPushButton *confirmed = box.addButton(loss, QMessageBox::DestructiveRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == confirmed;
}

void FilePanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    QTimer::singleShot(0, m_list, [this] { m_list->scrollToItem(m_list->currentItem()); });
}

}  // namespace penwright
