#pragma once

#include <QPlainTextEdit>

#include <optional>

namespace penwright {

/// A read-only box for a list of lines that stays quick with a million of them. Its text is the lines as they were
/// given, each ended by "\n". A line is chosen by a double click, or by Enter where the cursor is.
class LongTextBox : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit LongTextBox(QWidget *parent = nullptr);

    /// Shows a list from its first line on. Lines are wrapped in a list of ordinary length, and scroll sideways in a
    /// long one.
    void showLines(QString lines);

signals:
    /// Lines are counted from 0, whatever is wrapped.
    void lineChosen(int line);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void countLines();

    bool m_isLong = false;
    std::optional<int> m_pressedLine;  ///< by a double click
};

}  // namespace penwright
