#pragma once

#include <QDialog>

#include <functional>
#include <string>
#include <variant>

#include "grid/TableRun.h"
#include "grid/TableText.h"
#include "grid/TableUnit.h"

class QLabel;
class QLayout;
class QProgressBar;
class QPushButton;

namespace penwright {

class Closing;
class Dialogs;
class TableChoices;
class TablePreview;
class TextFiles;

/// Whether a table can be taken, and what is said of it, "" for nothing.
struct TableVerdict {
    bool isTaken = false;
    std::string text{};
};

/// What the dialog is told by whoever opens it.
struct TablePurpose {
    TableUnit unit{};    ///< for tables per kilolumen
    std::string need{};  ///< a sentence on the size that a table without angles is to have, "" for any

    /// Whether a table is taken whose values are to be multiplied by a factor.
    std::function<TableVerdict(const TableContent &table, double factor)> judge{};

    std::function<void()> showHelp{};
};

/// The dialog "Paste Table": the clipboard's text, or a text file's, as a table. It guesses how the text is read, shows
/// what it has understood, and lets the user choose otherwise. A long text is shown by its first part at once, and read
/// as a whole beside that.
class PasteTableDialog : public QDialog {
    Q_OBJECT

public:
    /// What it is given outlives it.
    PasteTableDialog(TablePurpose purpose, Dialogs &dialogs, TextFiles &files, const Closing &closing, QWidget *parent);

    /// Shows the clipboard's text; true when the user takes the table. At once, unshown, while the window unloads.
    bool ask();

    /// The table that is taken, and what its values are to be multiplied by.
    const TableContent &table() const { return std::get<TableContent>(*m_table); }
    double factor() const;

private:
    QWidget *makeBody();
    QLayout *makeSourceLine();
    QLayout *makeButtons();
    void makeLayout();
    void followTheEye();
    QPushButton *addButton(const char *name, const QString &text, void (PasteTableDialog::*act)());

    void takeClipboard();
    void chooseFile();
    void showHelp();
    void takeFile(const SharedText &text, int error);
    void takeText(const SharedText &text, const QString &source);
    void takeNothing(const QString &problem);
    void readAgain();
    void showFirstPart();
    void showWhole(const SharedTable &table);
    void showTable(const std::shared_ptr<const TableContent> &table);
    void showFault(const TableFault &fault);
    void say(const std::string &words, const std::string &problem, bool isTaken);
    void sayOfUnit();

    TablePurpose m_purpose;
    Dialogs &m_dialogs;
    TextFiles &m_files;
    const Closing &m_closing;
    TableRun m_run;
    SharedText m_text;
    std::string m_path;   ///< of the file that is read
    SharedTable m_table;  ///< none while one is read

    QLabel *m_source;
    TablePreview *m_preview;
    TableChoices *m_choices;
    QLabel *m_words;
    QLabel *m_problem;
    QProgressBar *m_progress;
    QPushButton *m_ok = nullptr;
};

}  // namespace penwright
