#include "wizard/QuietLabel.h"

#include <QApplication>
#include <QEvent>

namespace penwright {
namespace {

// Enough of the text's own colour to stay readable for weak eyes.
constexpr float kShareOfText = 0.70F;

float mix(float text, float background)
{
    return kShareOfText * text + (1 - kShareOfText) * background;
}

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
    const QColor text = base.color(QPalette::WindowText);
    const QColor background = base.color(QPalette::Window);
    const QColor quiet = QColor::fromRgbF(mix(text.redF(), background.redF()), mix(text.greenF(), background.greenF()),
                                          mix(text.blueF(), background.blueF()));
    if (palette().color(QPalette::WindowText) == quiet)
        return;  // setting it would be told as a change again
    QPalette own;
    own.setColor(QPalette::WindowText, quiet);
    setPalette(own);
}

}  // namespace penwright
