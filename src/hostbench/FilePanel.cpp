#include "hostbench/FilePanel.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSaveFile>
#include <QTimer>
#include <QVBoxLayout>

#include "core/IesText.h"
#include "core/StartupState.h"
#include "hostbench/TwoLineDelegate.h"
#include "platform/RunTimeError.h"

namespace penwright {

namespace {

bool writeFile(const QString &path, const PhotometricRecord &record, QString &reason)
{
    try {
        QSaveFile file(path);
        const bool isWritten = file.open(QIODevice::WriteOnly) &&
                               file.write(QByteArray::fromStdString(iesFileText(record))) >= 0 && file.commit();
        reason = file.errorString();
        return isWritten;
    } catch (const RunTimeError &error) {
        reason = QString::fromStdString(error.description());
        return false;
    }
}

}  // namespace

FilePanel::FilePanel(HeldFiles &files, QWidget *parent) : QWidget(parent), m_files(files)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *heading = new QHBoxLayout;
    auto *title = new QLabel(tr("Files"));
    title->setProperty("heading", true);
    m_count = new QLabel;
    m_count->setProperty("quiet", true);
    heading->addWidget(title);
    heading->addStretch();
    heading->addWidget(m_count);
    layout->addLayout(heading);

    m_list = new QListWidget;
    m_list->setObjectName("fileList");
    m_list->setAccessibleName(tr("Files that the host holds"));
    m_list->setItemDelegate(new TwoLineDelegate(m_list));
    m_list->setTextElideMode(Qt::ElideMiddle);
    layout->addWidget(m_list);

    auto *buttons = new QHBoxLayout;
    m_save = new QPushButton(tr("Save As..."));
    m_save->setObjectName("saveAs");
    m_remove = new QPushButton(tr("Remove"));
    m_remove->setObjectName("remove");
    buttons->addWidget(m_save);
    buttons->addWidget(m_remove);
    layout->addLayout(buttons);

    connect(m_list, &QListWidget::currentRowChanged, this, &FilePanel::enableButtons);
    connect(m_list, &QListWidget::currentRowChanged, this, &FilePanel::selectionChanged);
    connect(m_save, &QPushButton::clicked, this, &FilePanel::saveSelected);
    connect(m_remove, &QPushButton::clicked, this, &FilePanel::removeSelected);
    showFiles(-1);
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

void FilePanel::saveSelected()
{
    const int place = selected();
    QFileDialog dialog(this, tr("Save Photometric File As"), {}, tr("IES files (*.ies *.IES)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setDefaultSuffix("ies");
    if (dialog.exec() != QDialog::Accepted || place >= m_files.count())
        return;
    const QString path = dialog.selectedFiles().value(0);
    QString reason;
    if (!writeFile(path, m_files.at(place).record, reason)) {
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

bool FilePanel::mayLoseFiles()
{
    const int count = m_files.unsavedCount();
    if (count == 0)
        return true;
    const QString what = count == 1 ? tr("1 file is not saved.") : tr("%1 files are not saved.").arg(count);
    return confirms(tr("%1 Close all the same?").arg(what), tr("Close Without Saving"));
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
