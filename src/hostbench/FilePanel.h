#pragma once

#include <QWidget>

#include "hostbench/HeldFiles.h"

class QLabel;
class QListWidget;
class QPushButton;

namespace penwright {

/// The files that the host holds, with what can be done to the one selected.
class FilePanel : public QWidget {
    Q_OBJECT

public:
    explicit FilePanel(HeldFiles &files, QWidget *parent = nullptr);

    /// Shows the files as they are now and selects one by its place; -1 selects none.
    void showFiles(int selected);

    /// The place of the file selected, -1 for none.
    int selected() const;

    /// Reads files from disk and adds them, the last one selected. Why one cannot be read or held is told in one box.
    void open(const QStringList &paths);

    /// Asks before files that are not saved are lost, and what was typed into wizards at work; true when there is
    /// nothing to lose, or when the user means it.
    bool mayClose(int wizardsAtWork);

protected:
    /// Has the selected file in sight.
    void showEvent(QShowEvent *event) override;

signals:
    void selectionChanged();

private:
    void chooseFiles();
    void saveSelected();
    void removeSelected();
    bool confirms(const QString &question, const QString &loss);
    void enableButtons();

    HeldFiles &m_files;
    QLabel *m_count = nullptr;
    QListWidget *m_list = nullptr;
    QPushButton *m_open = nullptr;
    QPushButton *m_save = nullptr;
    QString m_folder;  ///< of the file chosen last
    QPushButton *m_remove = nullptr;
};

}  // namespace penwright
