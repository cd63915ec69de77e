#include "platform/qt/DeliverTo.h"

#include <QCoreApplication>
#include <QPointer>
#include <utility>

namespace penwright {

std::function<void(std::function<void()>)> deliverTo(QObject *object)
{
    return [alive = QPointer(object)](std::function<void()> call) {
        const auto make = [alive, call = std::move(call)] {
            if (alive)
                call();
        };
        if (auto *application = QCoreApplication::instance())
            QMetaObject::invokeMethod(application, make, Qt::QueuedConnection);
    };
}

}  // namespace penwright
