#include "pages/keywords/HintLabel.h"

#include <QApplication>
#include <QEvent>

namespace penwright {
namespace {

constexpr QColor kRedOnLight(0xB0, 0x1E, 0x1E);
constexpr QColor kRedOnDark(0xFF, 0x8A, 0x80);

}  // namespace

void HintLabel::setLines(int lines)
{
    m_lines = lines;
    setWordWrap(lines > 1);
    updateGeometry();
}

void HintLabel::setWarning(bool isWarning)
{
    if (isWarning == m_isWarning)
        return;
    m_isWarning = isWarning;
    QFont own = font();
    own.setBold(isWarning);
    setFont(own);
    mixColour();
}

QSize HintLabel::sizeHint() const
{
    return {0, m_lines * fontMetrics().lineSpacing()};
}

QSize HintLabel::minimumSizeHint() const
{
    return sizeHint();
}

void HintLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        mixColour();
}

void HintLabel::mixColour()
{
    const QPalette base = QApplication::palette();  // the parent's may not have followed yet
    const QColor red = base.color(QPalette::Window).lightness() < 128 ? kRedOnDark : kRedOnLight;
    QPalette own;
    if (m_isWarning)
        own.setColor(QPalette::WindowText, red);
    if (palette().color(QPalette::WindowText) != own.color(QPalette::WindowText))
        setPalette(own);
}

}  // namespace penwright
