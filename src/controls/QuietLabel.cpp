#include "controls/QuietLabel.h"

#include <QApplication>
#include <QEvent>

#include "controls/MixedColour.h"

namespace penwright {

QuietLabel::QuietLabel(QWidget *parent) : QuietLabel(QString(), parent) {}

QuietLabel::QuietLabel(const QString &text, QWidget *parent) : QLabel(text, parent)
{
    mixColour();
}

void QuietLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ParentChange)
        mixColour();
}

void QuietLabel::mixColour()
{
    const QPalette base = QApplication::palette();  // the parent's may not have followed yet
    const QColor quiet = quietText(base, QPalette::WindowText, QPalette::Window);
    if (palette().color(QPalette::WindowText) == quiet)
        return;  // setting it would be told as a change again
    QPalette own;
    own.setColor(QPalette::WindowText, quiet);
    setPalette(own);
}

}  // namespace penwright
