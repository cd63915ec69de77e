#include "controls/QuietLabel.h"

#include <QApplication>
#include <QEvent>

#include "controls/MixedColour.h"

namespace penwright {
namespace {

// Enough of the text's own colour to stay readable for weak eyes.
constexpr float kShareOfText = 0.70F;

}  // namespace

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
    const QColor quiet = mixedColour(base.color(QPalette::WindowText), base.color(QPalette::Window), kShareOfText);
    if (palette().color(QPalette::WindowText) == quiet)
        return;  // setting it would be told as a change again
    QPalette own;
    own.setColor(QPalette::WindowText, quiet);
    setPalette(own);
}

}  // namespace penwright
