#pragma once

#include <QPlainTextEdit>

#include <string>
#include <vector>

namespace penwright {

/// A file's text, read-only, in a font of fixed pitch and with line numbers. It stays quick with a file of any size:
/// the first lines are there at once, the rest comes as one scrolls to it, or all of it with the keys for the end of
/// the text, for all of it, and with the menu. A line that is longer than any reader of lines takes is shown in pieces,
/// which have one number.
class NumberedText : public QPlainTextEdit {
    Q_OBJECT

public:
    static constexpr int kFirstLines = 2000;

    explicit NumberedText(QWidget *parent = nullptr);

    /// Shows a text in UTF-8 from its first line on. Lines end with "\r\n" or "\n"; one behind the last line begins no
    /// other.
    void showText(std::string text);

    /// Shows a sentence in place of a text; it has no numbers.
    void showSentence(const std::string &sentence);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void begin(std::string text, int lines);
    void appendLines(int count);
    void showRest();
    void followScrolling();
    void layOutNumbers();
    void paintNumbers();
    int numberOf(int block) const;

    std::string m_text;
    std::size_t m_shown = 0;       ///< bytes of it that are in the box
    int m_lines = 0;               ///< of the whole text; 0 for a sentence
    int m_numberWidth = 0;         ///< pixels
    std::vector<int> m_continued;  ///< the blocks that go on with the line of the block before
};

}  // namespace penwright
