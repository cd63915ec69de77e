#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "support/SpinUntil.h"

namespace penwright::test {

/// Runs `act` once a modal dialog is on the screen; takes the dialog away, as a failure, when it outlives that.
template <typename Act>
void whenDialogIsUp(Act act)
{
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, qApp, [timer, act] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->windowHandle()->isExposed())
            return;
        timer->stop();
        timer->deleteLater();
        const QPointer<QDialog> open(dialog);
        act(*dialog);
        if (!spinUntil([&] { return !open || !open->isVisible(); })) {
            ADD_FAILURE() << "the dialog stays open";
            open->done(QDialog::Rejected);
        }
    });
    timer->start(5);
}

}  // namespace penwright::test
