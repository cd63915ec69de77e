#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace penwright {

/// The row of buttons at the top of the host's window. A button that cannot be pressed says what it lacks.
class CommandBar : public QWidget {
    Q_OBJECT

public:
    /// What decides which buttons can be pressed.
    struct Situation {
        bool isClosing = false;  ///< the window is waiting for its tools to close
        bool isToolRunning = false;
        bool isToolShown = false;  ///< the tab of a tool is the one shown
        bool isFileSelected = false;
        bool isNarrow = false;  ///< no room for a hint in words
    };

    explicit CommandBar(QWidget *parent = nullptr);

    void follow(const Situation &situation);

    /// Presses or releases the button that shows the files.
    void setFilesShown(bool isShown);

signals:
    void newFile();
    void filesShown(bool isShown);
    void sendDataChanged();
    void sendDeleteFile();
    void sendClose();

private:
    QPushButton *addButton(QHBoxLayout *row, const char *name, const QString &caption);
    void makeHint(QHBoxLayout *row);
    static void enable(QPushButton *button, const QString &whatItDoes, const QString &whatLacks);

    QPushButton *m_new = nullptr;
    QPushButton *m_files = nullptr;
    QLabel *m_hint = nullptr;
    QPushButton *m_dataChanged = nullptr;
    QPushButton *m_deleteFile = nullptr;
    QPushButton *m_close = nullptr;
};

}  // namespace penwright
