#include "plot/PlotView.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include <utility>

#include "controls/ScreenReader.h"
#include "plot/PlotActions.h"
#include "plot/PlotFonts.h"
#include "plot/PlotPainter.h"

namespace penwright {

namespace {

/// How long the pointer stays before screen readers are told: on its way it passes over many values.
constexpr int kRest = 500;  // milliseconds

constexpr double kMarkRadius = 3.5;

PlotBox boxOf(const QRectF &area)
{
    return {area.x(), area.y(), area.width(), area.height()};
}

std::optional<PlotStep> stepOf(int key)
{
    switch (key) {
        case Qt::Key_Right:
            return PlotStep::Next;
        case Qt::Key_Left:
            return PlotStep::Previous;
        case Qt::Key_Home:
            return PlotStep::First;
        case Qt::Key_End:
            return PlotStep::Last;
        case Qt::Key_Up:
        case Qt::Key_Down:
            return PlotStep::OtherCurve;
        default:
            return std::nullopt;
    }
}

}  // namespace

PlotView::PlotView(QWidget *parent)
    : QFrame(parent), m_actions(new PlotActions(*this, [this]() -> const PlotPicture & { return m_picture; }))
{
    setScreenReaderRole(*this, QAccessible::Graphic);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAccessibleName(QStringLiteral("Candela plot"));
    setAccessibleDescription(QStringLiteral("No values."));
    m_rest.setSingleShot(true);
    m_rest.setInterval(kRest);
    connect(&m_rest, &QTimer::timeout, this, &PlotView::tellReading);
    connect(m_actions, &PlotActions::linearChosen, this,
            [this](bool isLinear) { setShape(isLinear ? PlotShape::Linear : PlotShape::Polar); });
}

PlotView::~PlotView() = default;

void PlotView::draw(const PhotometricRecord &record, const OneBasedTable<CandelaCell> &cells,
                    const PlotAngle &horizontal, const PlotAngle &vertical)
{
    setPicture(plotPicture(record, cells, horizontal, vertical, m_shape));
}

void PlotView::setPicture(PlotPicture picture)
{
    m_picture = std::move(picture);
    if (m_picture.curves.shape != m_shape)
        reshape(m_picture.curves, m_shape);
    readAnew();
    tellReading();
    update();
}

void PlotView::setShape(PlotShape shape)
{
    if (m_shape == shape)
        return;
    m_shape = shape;
    reshape(m_picture.curves, shape);
    readAnew();
    update();
    emit shapeChanged(shape);
}

void PlotView::setDialogs(Dialogs &dialogs)
{
    m_actions->setDialogs(dialogs);
}

void PlotView::setFollowsPalette()
{
    m_followsPalette = true;
    update();
}

PlotLook PlotView::look() const
{
    return m_followsPalette ? plotLook(palette()) : kPaperLook;
}

PlotScales PlotView::scales() const
{
    return plotScales(boxOf(contentsRect()), PlotFonts(font()).room(), m_picture);
}

void PlotView::readAnew()
{
    if (m_pointer)
        readAtPointer();
    else if (m_reading)
        setReading(readingAgain(m_picture.curves, *m_reading));
}

void PlotView::readAtPointer()
{
    setReading(m_picture.rings.empty() ? std::nullopt
                                       : readingAt(m_picture.curves, scales(), {m_pointer->x(), m_pointer->y()}));
}

void PlotView::setReading(std::optional<PlotReading> reading)
{
    m_reading = std::move(reading);
    m_rest.start();
    update();
    emit readingChanged();
}

void PlotView::tellReading()
{
    m_rest.stop();
    std::string words = m_picture.words;
    if (m_reading)
        words += " " + readingText(*m_reading);
    describe(*this, QString::fromStdString(words));
}

bool PlotView::event(QEvent *event)
{
    // A key of the picture's own is none of the window's shortcuts.
    if (event->type() == QEvent::ShortcutOverride && stepOf(static_cast<QKeyEvent *>(event)->key())) {
        event->accept();
        return true;
    }
    return QFrame::event(event);
}

void PlotView::mouseMoveEvent(QMouseEvent *event)
{
    m_pointer = event->position();
    readAtPointer();
}

void PlotView::leaveEvent(QEvent *event)
{
    QFrame::leaveEvent(event);
    m_pointer.reset();
    setReading(std::nullopt);
}

void PlotView::keyPressEvent(QKeyEvent *event)
{
    const std::optional<PlotStep> step = stepOf(event->key());
    if (event->matches(QKeySequence::Copy))
        return m_actions->copy();
    if (!step || m_picture.rings.empty())
        return QFrame::keyPressEvent(event);
    setReading(readingAfter(m_picture.curves, m_reading, *step));
    tellReading();
}

void PlotView::focusOutEvent(QFocusEvent *event)
{
    QFrame::focusOutEvent(event);
    if (m_reading && !m_pointer && event->reason() != Qt::PopupFocusReason)
        setReading(std::nullopt);
}

void PlotView::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isKey = event->reason() == QContextMenuEvent::Keyboard;
    m_actions->popUp(isKey ? mapToGlobal(rect().center()) : event->globalPos(), m_shape == PlotShape::Linear);
}

void PlotView::paintReading(QPainter &painter) const
{
    if (!m_reading)
        return;
    const PlotLook colours = look();
    const PlotScales at = scales();
    const PlotPixel place = (m_reading->isCone ? at.cone : at.plane).placeOf(m_reading->point);
    painter.setPen(QPen(m_reading->isCone ? colours.cone : colours.plane, 2));
    painter.setBrush(colours.paper);
    painter.drawEllipse(QPointF(place.x, place.y), kMarkRadius, kMarkRadius);
}

void PlotView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setClipRect(contentsRect());
    paintPlot(painter, contentsRect(), font(), m_picture, look());
    paintReading(painter);
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(contentsRect().adjusted(1, 1, -1, -1));
    }
    painter.end();
    QFrame::paintEvent(event);
}

}  // namespace penwright
