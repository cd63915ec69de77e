#pragma once

#include <QMainWindow>

#include "hostbench/FilePanel.h"
#include "hostbench/HeldFiles.h"
#include "hostbench/ToolTab.h"

class QTabWidget;

namespace penwright {

class CommandBar;
class FileView;
class HostKeyboard;
class LogPanel;

/// The stand-in host's window: the files it holds, text and picture of the one selected, a tab for each tool that runs,
/// and the log of the link. Where there is little room, the tool shown gets that of the files. Closing it closes the
/// tools first, and asks before that when files would be lost or a wizard is at work.
class HostWindow : public QMainWindow {
    Q_OBJECT

public:
    /// `toolProgram` is the executable that "New Photometric File..." starts. Removes from the store what hosts of this
    /// program that were killed have left there.
    HostWindow(HostStore &store, QString toolProgram, QWidget *parent = nullptr);
    ~HostWindow() override;

    /// Starts one more tool in a tab of its own; the tab lives until the tool has ended.
    ToolTab *startTool();

    /// The number of tools that run.
    int toolCount() const { return static_cast<int>(m_tools.size()); }

    const HeldFiles &files() const { return m_files; }

    /// Adds a file as if a tool had brought it, and selects it. False when the list is full.
    bool addFile(HeldFile file);

    /// Reads files from disk, off the window's thread, and adds them, the last one selected; what cannot be read is
    /// told in one box.
    void openFiles(const QStringList &paths) { m_panel->open(paths); }

    /// Puts the selected file into the store of the tool whose tab is shown and sends "DATACHANGED".
    void sendDataChanged();

signals:
    /// A command of a tool has been taken and done, its record with it.
    void commandDone(penwright::ToolTab *tab, const penwright::ToolCommand &command);

    /// The tool's process is gone; its tab is about to go.
    void toolEnded(penwright::ToolTab *tab);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void removeLeftSections();
    QWidget *makeCentre();
    void connectButtons();
    void followPalette();
    void storeSelected(ToolTab *tab);
    void sendDeleteFile();
    void obey(ToolTab *tab, const ToolCommand &command);
    void readRecord(ToolTab *tab, bool isSaved);
    void removeTool(ToolTab *tab);
    void closeTools();
    void note(ToolTab *tab, const QString &text);
    void showSelected();
    void makeRoom();
    bool isNarrow() const;
    void enableButtons();
    ToolTab *shownTool() const;
    int wizardsAtWork() const;

    HostStore &m_store;
    QString m_toolProgram;
    HeldFiles m_files;
    QList<ToolTab *> m_tools;
    int m_started = 0;
    bool m_wasNarrow = false;
    bool m_isClosing = false;

    HostKeyboard *m_keyboard = nullptr;
    FilePanel *m_panel = nullptr;
    QTabWidget *m_tabs = nullptr;
    FileView *m_view = nullptr;
    LogPanel *m_log = nullptr;
    CommandBar *m_bar = nullptr;
};

}  // namespace penwright
