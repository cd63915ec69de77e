#pragma once

#include <QPlainTextEdit>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QTimer;

namespace penwright {

/// A file's text, read-only, in a font of fixed pitch and with line numbers. It stays quick with a file of any size:
/// the first lines are there at once, the rest comes as one scrolls to it, or all of it with the keys for the end of
/// the text, for all of it, and with the menu; a rest that is long comes bit by bit, while the window goes on, until
/// another key or a click ends it. A line that is longer than any reader of lines takes is shown in pieces,
/// which have one number.
class NumberedText : public QPlainTextEdit {
    Q_OBJECT

public:
    static constexpr int kFirstLines = 2000;

    /// As many lines, or pieces of them, as are shown in a moment.
    static constexpr int kMostAtOnce = 10'000;
    static constexpr qsizetype kLongestAtOnce = 10'000'000;  ///< characters, whatever the pieces

    explicit NumberedText(QWidget *parent = nullptr);

    /// Shows a text in UTF-8 from its first line on. Lines end with "\r\n", "\n" or "\r"; one behind the last line
    /// begins no other.
    void showText(std::string text);
    void showText(std::shared_ptr<const std::string> text);

    /// Shows a sentence in place of a text; it has no numbers.
    void showSentence(const std::string &sentence);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    using Text = std::shared_ptr<const std::string>;

    void begin(Text text, bool hasNumbers);
    bool isWhole() const { return m_shown == m_text->size(); }
    std::string_view nextPiece();
    void appendPieces(int count);
    void showRest(const std::function<void()> &goThere);
    void showMore();
    void showAll();
    void followScrolling();
    void layOutNumbers();
    void paintNumbers();
    int numberOf(int block) const;

    QTimer *m_more;                     ///< runs while a long rest is on its way
    std::function<void()> m_goThere{};  ///< what the rest is shown for
    Text m_text;
    std::size_t m_shown = 0;       ///< bytes of it that are in the box
    bool m_isInLine = false;       ///< they end within a line
    bool m_hasNumbers = false;     ///< a sentence has none
    int m_numberWidth = 0;         ///< pixels
    std::vector<int> m_continued;  ///< the blocks that go on with the line of the block before
};

}  // namespace penwright
