#include "grid/GridRefusal.h"

#include <QApplication>
#include <QDialog>
#include <QMouseEvent>

namespace penwright {
namespace {

/// Whether the mouse button that was held down is up again; a key or a bare movement tells it where the release went
/// to another program.
bool tellsRelease(const QEvent &event)
{
    switch (event.type()) {
        case QEvent::MouseButtonRelease:
        case QEvent::KeyPress:
            return true;
        case QEvent::MouseMove:
            return static_cast<const QMouseEvent &>(event).buttons() == Qt::NoButton;
        default:
            return false;
    }
}

}  // namespace

void GridRefusal::tell(int row, int column, const MessageBox &box, bool afterRelease)
{
    if (m_pending)
        return;
    m_pending = {row, column, box};
    if (afterRelease)
        qApp->installEventFilter(this);
    else
        tellLater();
}

bool GridRefusal::eventFilter(QObject *watched, QEvent *event)
{
    if (tellsRelease(*event)) {
        qApp->removeEventFilter(this);
        tellLater();
    }
    return QObject::eventFilter(watched, event);
}

void GridRefusal::tellLater()
{
    QMetaObject::invokeMethod(this, &GridRefusal::tellNow, Qt::QueuedConnection);
}

void GridRefusal::tellNow()
{
    if (!m_pending)
        return;
    if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
        // The release may have pressed a button that asks something itself.
        connect(dialog, &QDialog::finished, this, &GridRefusal::tellLater, Qt::SingleShotConnection);
        return;
    }
    const Pending pending = *m_pending;
    forget();
    if (m_dialogs->show(pending.box) != Answer::Dismissed)
        emit told(pending.row, pending.column);
}

}  // namespace penwright
