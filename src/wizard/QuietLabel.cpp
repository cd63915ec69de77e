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
    if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::ParentChange)
        mixColour();
}

void QuietLabel::mixColour()
{
    const QPalette base = parentWidget() ? parentWidget()->palette() : QApplication::palette();
    const QColor text = base.color(QPalette::WindowText);
    const QColor background = base.color(QPalette::Window);
    QPalette own;
    own.setColor(QPalette::WindowText,
                 QColor::fromRgbF(mix(text.redF(), background.redF()), mix(text.greenF(), background.greenF()),
                                  mix(text.blueF(), background.blueF())));
    setPalette(own);
}

}  // namespace penwright
