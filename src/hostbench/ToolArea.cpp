#include "hostbench/ToolArea.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QPainter>

#include "controls/MixedColour.h"
#include "platform/Freed.h"

namespace penwright {

ToolArea::ToolArea(QWidget *parent) : QWidget(parent)
{
    // Without the second attribute every widget around it becomes a native window too.
    setAttribute(Qt::WA_NativeWindow);
    setAttribute(Qt::WA_DontCreateNativeAncestors);
    setMinimumSize(320, 200);
}

QSize ToolArea::pixels() const
{
    // Other platforms may hold an X connection too, but their window numbers are none of the display's.
    if (QGuiApplication::platformName() != "xcb")
        return size() * devicePixelRatioF();
    xcb_connection_t *display = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    const auto reply = freed(xcb_get_geometry_reply(display, xcb_get_geometry(display, windowNumber()), nullptr));
    return reply ? QSize(reply->width, reply->height) : size() * devicePixelRatioF();
}

void ToolArea::setMessage(const QString &message)
{
    m_message = message;
    update();
}

void ToolArea::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    painter.setPen(quietText(palette(), QPalette::WindowText, QPalette::Window));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, m_message);
}

void ToolArea::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    emit resized();
}

}  // namespace penwright
