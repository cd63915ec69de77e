#pragma once

#include <QLabel>

namespace penwright {

/// A label below the form that keeps its place: it takes the height of a number of lines whatever it says, and longer
/// text is wrapped. A warning is bold and red, in any palette.
class HintLabel : public QLabel {
    Q_OBJECT
    Q_PROPERTY(int lines READ lines WRITE setLines)

public:
    using QLabel::QLabel;

    int lines() const { return m_lines; }
    void setLines(int lines);

    void setWarning(bool isWarning);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return false; }

protected:
    void changeEvent(QEvent *event) override;

private:
    void mixColour();

    int m_lines = 1;
    bool m_isWarning = false;
};

}  // namespace penwright
