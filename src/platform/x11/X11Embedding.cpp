#include "platform/x11/X11Embedding.h"

#include <algorithm>
#include <cmath>
#include <QApplication>
#include <QElapsedTimer>
#include <QLayout>
#include <QPointer>
#include <QThread>
#include <QWidget>
#include <QWindow>
#include <utility>

#include "platform/x11/HostWatch.h"
#include "platform/x11/QtMessages.h"
#include "platform/x11/X11Focus.h"

namespace penwright {

using x11::WindowId;

class X11Embedding::Private {
public:
    explicit Private(std::function<void()> hostGone)
        : watch([this, tell = std::move(hostGone)] {
              isHostGone = true;
              tell();
          })
    {
    }

    WindowId self() const { return static_cast<WindowId>(window->winId()); }
    bool isOnX11() const { return window && x11::available(); }
    void hideUntilUnmanaged();
    void becomeTopLevel();
    bool becomeChildOf(WindowId parent);
    void placeInToolkit(int x, int y, PixelSize size);

    bool isHostGone = false;
    HostWatch watch;
    ForeignWindows foreign;
    QPointer<QWidget> window;
    std::unique_ptr<X11Focus> focus;
    WindowId host = 0;  ///< the window that the wizard is a child of, 0 for none
};

// A window manager gives a top-level window back to the root some time after it was hidden; a window that is made a
// child of another before that stays unmapped.
void X11Embedding::Private::hideUntilUnmanaged()
{
    window->hide();
    QElapsedTimer clock;
    clock.start();
    while (!x11::isRoot(x11::parentOf(self())) && clock.elapsed() < 500)
        QThread::msleep(1);
}

void X11Embedding::Private::becomeTopLevel()
{
    watch.forget(self());
    focus->setHost(0);
    host = 0;
    window->windowHandle()->setParent(nullptr);
    x11::parentOf(self());  // returns once the display has obeyed: the process may end right after
}

bool X11Embedding::Private::becomeChildOf(WindowId parent)
{
    window->windowHandle()->setParent(foreign.of(parent));
    if (x11::parentOf(self()) != parent) {
        becomeTopLevel();  // the toolkit believes that it is a child even where the display refused
        return false;
    }
    host = parent;
    focus->setHost(parent);
    watch.forget(self());
    watch.watchOwn(self());
    return true;
}

// The toolkit keeps a place of its own for a hidden window and sends it when the window is shown.
void X11Embedding::Private::placeInToolkit(int x, int y, PixelSize size)
{
    const double scale = window->devicePixelRatioF();
    const auto logical = [scale](int pixels) { return static_cast<int>(std::lround(pixels / scale)); };
    const QRect place(logical(x), logical(y), std::max(1, logical(size.width)), std::max(1, logical(size.height)));
    window->setGeometry(place);
    window->windowHandle()->setGeometry(place);
}

X11Embedding::X11Embedding(std::function<void()> hostGone) : d(std::make_unique<Private>(std::move(hostGone)))
{
    installMessageFilter();
}

X11Embedding::~X11Embedding()
{
    if (d->window && d->host)
        d->becomeTopLevel();  // else its native window would be destroyed with the stand-in of its parent
}

void X11Embedding::adopt(std::uintptr_t window)
{
    d->window = QWidget::find(static_cast<WId>(window));
    if (!d->window)
        return;
    if (d->window->layout())
        d->window->layout()->setSizeConstraint(QLayout::SetNoConstraint);
    d->focus = std::make_unique<X11Focus>(*d->window, d->foreign);
}

bool X11Embedding::watchHost(std::uint32_t host)
{
    return d->watch.watch(host);
}

void X11Embedding::takeFocus()
{
    if (d->focus)
        d->focus->take();
}

void X11Embedding::giveBack(std::uint32_t parent)
{
    if (!d->window)
        return;
    if (d->focus && !d->isHostGone)
        d->focus->letGo();
    d->window->hide();
    if (d->host && !d->isHostGone)
        SetParent(x11::exists(parent) ? parent : 0);
}

std::uint32_t X11Embedding::SetParent(std::uint32_t parent)
{
    if (!d->isOnX11())
        return 0;
    const bool toRoot = parent == 0 || x11::isRoot(parent);
    if (d->host == (toRoot ? 0 : parent))
        return x11::parentOf(d->self());
    const bool wasShown = d->window->isVisible();
    if (wasShown)
        d->hideUntilUnmanaged();
    const WindowId former = x11::parentOf(d->self());
    bool changed = true;
    if (toRoot)
        d->becomeTopLevel();
    else
        changed = d->becomeChildOf(parent);
    if (wasShown)
        d->window->show();
    return changed ? former : 0;
}

void X11Embedding::MoveWindow(int x, int y, PixelSize size)
{
    if (!d->window)
        return;
    d->window->setAttribute(Qt::WA_Resized);  // else show() falls back to the size that the layout would like
    if (!d->host || !d->window->isVisible())
        d->placeInToolkit(x, y, size);
    if (d->isOnX11())
        x11::place(d->self(), x, y, size);
}

void X11Embedding::raise()
{
    if (d->isOnX11())
        x11::raise(d->self());
    else if (d->window)
        d->window->raise();
}

bool X11Embedding::isShown() const
{
    return d->window && d->window->isVisible();
}

PixelSize X11Embedding::size() const
{
    if (!d->window)
        return {};
    if (d->isOnX11())
        if (const auto exact = x11::sizeOf(d->self()))
            return *exact;
    const QSize size = d->window->size() * d->window->devicePixelRatioF();
    return {size.width(), size.height()};
}

double X11Embedding::twipsPerPixel() const
{
    return 15.0 / (d->window ? d->window->devicePixelRatioF() : qApp->devicePixelRatio());
}

}  // namespace penwright
