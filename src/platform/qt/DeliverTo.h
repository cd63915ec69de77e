#pragma once

#include <functional>

class QObject;

namespace penwright {

/// A way to have calls made by the event loop, from any thread: each of them unless the object is gone by then.
std::function<void(std::function<void()>)> deliverTo(QObject *object);

}  // namespace penwright
