#include "plot/PlotView.h"

#include <QPainter>

#include <utility>

#include "controls/ScreenReader.h"
#include "plot/PlotPainter.h"

namespace penwright {

PlotView::PlotView(QWidget *parent) : QFrame(parent)
{
    setScreenReaderRole(*this, QAccessible::Graphic);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(QStringLiteral("Candela plot"));
    setAccessibleDescription(QStringLiteral("No values."));
}

void PlotView::draw(const PhotometricRecord &record, const OneBasedTable<CandelaCell> &cells, float horizontalAngle,
                    float verticalAngle)
{
    setPicture(plotPicture(record, cells, horizontalAngle, verticalAngle));
}

void PlotView::setPicture(PlotPicture picture)
{
    m_picture = std::move(picture);
    describe(*this, QString::fromStdString(m_picture.words));
    update();
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

void PlotView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setClipRect(contentsRect());
    paintPlot(painter, contentsRect(), font(), m_picture, look());
    painter.end();
    QFrame::paintEvent(event);
}

}  // namespace penwright
