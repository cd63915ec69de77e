#include "platform/qt/Closing.h"

#include <QAbstractItemDelegate>
#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QDrag>
#include <QThread>

namespace penwright {
namespace {

using namespace std::chrono_literals;

bool closePopup()
{
    QWidget *popup = QApplication::activePopupWidget();
    if (popup && !popup->close())
        popup->hide();
    return popup != nullptr;
}

bool dismissModal()
{
    QWidget *modal = QApplication::activeModalWidget();
    if (auto *dialog = qobject_cast<QDialog *>(modal))
        dialog->done(QDialog::Rejected);  // close() is vetoed by a box without an escape button
    else if (modal && !modal->close())
        modal->hide();
    return modal != nullptr;
}

// Left open, an editor would commit what it holds when its window is hidden.
void dropCellEditors()
{
    for (QWidget *widget : QApplication::allWidgets())
        if (auto *view = qobject_cast<QAbstractItemView *>(widget))
            for (QWidget *child : view->viewport()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
                if (!child->isHidden())
                    emit view->itemDelegate()->closeEditor(child, QAbstractItemDelegate::RevertModelCache);
}

}  // namespace

Closing::Closing(QObject *parent) : QObject(parent)
{
    // A timer does not fire while its own slot is on the stack; queued, a step that runs a nested loop stops nothing.
    connect(&m_unwind, &QTimer::timeout, this, &Closing::step, Qt::QueuedConnection);
}

void Closing::begin()
{
    if (m_stage != Stage::Running)
        return;
    m_stage = Stage::Unwinding;
    m_unwind.start(10ms);
    emit begun();
}

void Closing::hostVanished()
{
    m_hostGone = true;
    begin();
}

void Closing::step()
{
    if (m_stage != Stage::Unwinding || closePopup())
        return;
    dropCellEditors();
    if (dismissModal())
        return;
    if (QThread::currentThread()->loopLevel() > 1) {
        QDrag::cancel();  // the one loop left that does not look at the flag itself
        return;
    }
    m_unwind.stop();
    m_stage = Stage::Finishing;
    emit unwound();
}

}  // namespace penwright
