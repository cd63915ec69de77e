#include "plot/PlotView.h"

#include <QPainter>

#include <utility>

#include "controls/ScreenReader.h"
#include "plot/PlotPainter.h"

namespace penwright {

PlotView::PlotView(QWidget *parent) : QFrame(parent)
{
    setScreenReaderRole(*this, QAccessible::Graphic);
    m_curves.typeC = true;
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(QStringLiteral("Candela plot"));
    setAccessibleDescription(QStringLiteral("No values."));
}

void PlotView::draw(const PhotometricRecord &record, const OneBasedTable<CandelaCell> &cells, float horizontalAngle,
                    float verticalAngle)
{
    PlotCurves curves = plotCurves(record, cells, horizontalAngle, verticalAngle);
    std::vector<PlotRing> rings = plotRings(curves.largest());
    const QString description = QString::fromStdString(plotDescription(curves));

    m_curves = std::move(curves);
    m_rings = std::move(rings);
    describe(*this, description);
    update();
}

void PlotView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setClipRect(contentsRect());
    paintPlot(painter, contentsRect(), font(), m_curves, m_rings);
    painter.end();
    QFrame::paintEvent(event);
}

}  // namespace penwright
