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

    /// Asks before files that are not saved are lost; true when there are none, or when the user means it.
    bool mayLoseFiles();

protected:
    /// Has the selected file in sight.
    void showEvent(QShowEvent *event) override;

signals:
    void selectionChanged();

private:
    void saveSelected();
    void removeSelected();
    bool confirms(const QString &question, const QString &loss);
    void enableButtons();

    HeldFiles &m_files;
    QLabel *m_count = nullptr;
    QListWidget *m_list = nullptr;
    QPushButton *m_save = nullptr;
    QPushButton *m_remove = nullptr;
};

}  // namespace penwright
