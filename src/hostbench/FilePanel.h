#pragma once

#include <QWidget>

#include <memory>

#include "hostbench/HeldFiles.h"

class QLabel;
class QListWidget;
class QPushButton;

namespace penwright {

class FileOpening;
class OpeningBar;
class TextFiles;

/// The files that the host holds, with what can be done to the one selected.
class FilePanel : public QWidget {
    Q_OBJECT

public:
    /// `disk` is where files that are opened come from.
    FilePanel(HeldFiles &files, std::shared_ptr<TextFiles> disk, QWidget *parent = nullptr);

    /// Shows the files as they are now and selects one by its place; -1 selects none.
    void showFiles(int selected);

    /// The place of the file selected, -1 for none.
    int selected() const;

    /// Reads files from disk, off the window's thread, and adds and selects each. Once all are read, why one could not
    /// be read or held is told in one box.
    void open(const QStringList &paths);

    /// Leaves room in the list for what wizards at work will bring.
    void setWizardsAtWork(int wizards) { m_wizardsAtWork = wizards; }

    /// Opens no more of them, and tells of none.
    void stopOpening();

    /// Asks before files that are not saved are lost, and what was typed into wizards at work; true when there is
    /// nothing to lose, or when the user means it.
    bool mayClose(int wizardsAtWork);

protected:
    /// Has the selected file in sight.
    void showEvent(QShowEvent *event) override;

signals:
    void selectionChanged();

private:
    QLayout *makeHeading();
    QLayout *makeButtons();
    void followOpening();
    void add(HeldFile &file);
    void tellProblems();
    void chooseFiles();
    void saveSelected();
    void removeSelected();
    bool confirms(const QString &question, const QString &loss);
    void enableButtons();

    HeldFiles &m_files;
    FileOpening *m_opening;
    int m_wizardsAtWork = 0;
    QStringList m_problems;  ///< of files that were to be opened, not told yet
    OpeningBar *m_bar = nullptr;
    QLabel *m_count = nullptr;
    QListWidget *m_list = nullptr;
    QPushButton *m_open = nullptr;
    QPushButton *m_save = nullptr;
    QString m_folder;  ///< of the file chosen last
    QPushButton *m_remove = nullptr;
};

}  // namespace penwright
