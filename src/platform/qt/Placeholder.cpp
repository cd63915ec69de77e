#include "platform/qt/Placeholder.h"

#include <QApplication>
#include <QPalette>
#include <QWidget>

namespace penwright {

void makePlaceholdersLegible(QWidget &window)
{
    QColor quiet = QApplication::palette().color(QPalette::Text);
    quiet.setAlphaF(0.6F);
    if (window.palette().color(QPalette::PlaceholderText) == quiet)
        return;    // setting it would be told as a change again
    QPalette own;  // this one colour alone: all others go on following the application's
    own.setColor(QPalette::PlaceholderText, quiet);
    window.setPalette(own);
}

}  // namespace penwright
