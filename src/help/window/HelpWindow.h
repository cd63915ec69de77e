#pragma once

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

#include "help/HelpFile.h"
#include "help/window/HelpSearch.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace penwright {

class HelpBrowser;
class HelpContents;
class WebQuestion;

/// The help window `frmHelp`: the contents tree `tvwContents`, the page `wbrTopic`, the search box `txtSearch` with its
/// list `lstFound`, and the buttons `cmdBack`, `cmdForward` and `cmdHome`. It belongs to no other window, opens no
/// dialog, and closing it hides it.
class HelpWindow : public QWidget {
    Q_OBJECT

public:
    HelpWindow();
    ~HelpWindow() override;

    /// The help file shown from now on, at no page yet.
    void setFile(std::unique_ptr<HelpFile> file);

    /// The file shown; null before the first.
    HelpFile *file() { return m_file.get(); }

    /// Shows a page, brings the window to the front and gives it the keyboard.
    void showPlace(const HelpPlace &place);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void makeLayout();
    QWidget *makeBar();
    QWidget *makeSide();
    QWidget *makeFoundList();
    QPushButton *makeButton(const char *name, const QString &text, const QString &key);
    void connectAll();
    void addKey(const QKeySequence &key, const std::function<void()> &action);

    void followPalette();
    void onPageChanged();
    void goHome();
    void focusNextPane();
    void search();
    const HelpSearch &searchOfFile();
    void showFound(const QListWidgetItem *item);

    std::unique_ptr<HelpFile> m_file;
    std::optional<HelpSearch> m_search;  ///< of the file, once it was asked for
    QStringList m_words;

    QPushButton *m_cmdBack = nullptr;
    QPushButton *m_cmdForward = nullptr;
    QPushButton *m_cmdHome = nullptr;
    QLineEdit *m_txtSearch = nullptr;
    HelpContents *m_tvwContents = nullptr;
    QWidget *m_found = nullptr;
    QLabel *m_lblFound = nullptr;
    QListWidget *m_lstFound = nullptr;
    WebQuestion *m_webQuestion = nullptr;
    HelpBrowser *m_wbrTopic = nullptr;
};

}  // namespace penwright
