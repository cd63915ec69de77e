#include "hostbench/PolarPicture.h"

#include <algorithm>
#include <QPainter>
#include <QPainterPath>
#include <QTransform>

#include "controls/MixedColour.h"
#include "platform/RunTimeError.h"

namespace penwright {

namespace {

constexpr int kSpoke = 30;  // degrees between the radial lines
constexpr int kEmptyRings = 4;
constexpr double kCurveWidth = 1.6;

/// The file's candelas as the plot's rules take them: a file has no blank cells.
OneBasedTable<CandelaCell> cellsOf(const PhotometricRecord &record)
{
    OneBasedTable<CandelaCell> cells(record.NumHorzAngles, record.NumVertAngles);
    for (int h = 1; h <= record.NumHorzAngles; ++h)
        for (int v = 1; v <= record.NumVertAngles; ++v)
            cells(h, v) = record.Candela(h, v);
    return cells;
}

/// The curve in candela.
QPainterPath pathOf(const PlotCurve &curve)
{
    QPainterPath path;
    for (const PlotRun &run : curve.runs) {
        path.moveTo(run.front().x, run.front().y);
        for (const PlotPoint &point : run)
            path.lineTo(point.x, point.y);
    }
    return path;
}

}  // namespace

PolarPicture::PolarPicture(QWidget *parent) : QWidget(parent)
{
    setObjectName("polarPicture");
    setAccessibleName(tr("Polar picture of the selected file"));
}

void PolarPicture::showCurves(const PhotometricRecord &record, float horizontalAngle, float verticalAngle)
{
    clear();
    try {
        m_curves = plotCurves(record, cellsOf(record), horizontalAngle, verticalAngle);
        m_rings = plotRings(m_curves.largest());
        setAccessibleDescription(QString::fromStdString(plotDescription(m_curves)));
    } catch (const RunTimeError &) {
        clear();
    }
}

void PolarPicture::clear()
{
    m_curves = {};
    m_rings.clear();
    setAccessibleDescription({});
    update();
}

bool PolarPicture::isDark() const
{
    return palette().color(QPalette::Base).lightness() < palette().color(QPalette::Text).lightness();
}

QColor PolarPicture::planeColour() const
{
    return isDark() ? QColor(0x6e, 0xa8, 0xe6) : QColor(0x1d, 0x5f, 0xa8);
}

QColor PolarPicture::coneColour() const
{
    return isDark() ? QColor(0xf0, 0x8a, 0x78) : QColor(0xc0, 0x39, 0x2b);
}

void PolarPicture::paintGrid(QPainter &painter, const QPointF &centre, double radius) const
{
    QColor line = palette().color(QPalette::Text);
    line.setAlphaF(0.16F);
    const auto ring = [&](double size) { painter.drawEllipse(centre, size, size); };
    painter.setPen(QPen(line, 1));
    for (int degrees = 0; degrees < 360; degrees += kSpoke)
        painter.drawLine(centre, QLineF::fromPolar(radius, degrees).translated(centre).p2());
    for (int i = 1; m_rings.empty() && i <= kEmptyRings; ++i)
        ring(radius * i / kEmptyRings);
    for (const PlotRing &each : m_rings)
        ring(radius * each.candela / m_rings.back().candela);
    painter.setPen(quietText(palette()));
    const double height = painter.fontMetrics().height();
    for (const PlotRing &each : m_rings) {
        const double y = centre.y() - radius * each.candela / m_rings.back().candela;
        painter.drawText(QPointF(centre.x() + 3, y + height - 2), QString::fromStdString(each.text));
    }
}

/// The vertical angle at each end of the axes: down, right, up, left.
void PolarPicture::paintDegrees(QPainter &painter, const QPointF &centre, double radius) const
{
    struct End {
        QPointF direction;
        const char *typeC;
        const char *typeB;
    };
    constexpr int kGap = 4;
    for (const End &end : {End{{0, 1}, "0", "-90"}, {{1, 0}, "90", "0"}, {{0, -1}, "180", "90"}, {{-1, 0}, "90", ""}}) {
        const QString text = QLatin1String(m_curves.typeC ? end.typeC : end.typeB);
        if (text.isEmpty())
            continue;
        QRectF place = painter.fontMetrics().boundingRect(text + QChar(0xb0));
        const QPointF half(place.width() / 2 + kGap, place.height() / 2);
        place.moveCenter(centre + end.direction * radius +
                         QPointF(end.direction.x() * half.x(), end.direction.y() * half.y()));
        painter.drawText(place.adjusted(-1, 0, 1, 0), Qt::AlignCenter, text + QChar(0xb0));
    }
}

void PolarPicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    painter.setRenderHint(QPainter::Antialiasing);
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    painter.setFont(small);
    const int margin = painter.fontMetrics().horizontalAdvance("180\u00b0") + 10;
    const double radius = std::max(1, (std::min(width(), height()) - 2 * margin) / 2);
    const QPointF centre(width() / 2 + 0.5, height() / 2 + 0.5);
    paintGrid(painter, centre, radius);
    if (m_rings.empty())
        return;
    paintDegrees(painter, centre, radius);
    QTransform toScreen;
    toScreen.translate(centre.x(), centre.y());
    toScreen.scale(radius / m_rings.back().candela, -radius / m_rings.back().candela);
    for (const auto &[curve, colour] : {std::pair{&m_curves.cone, coneColour()}, {&m_curves.plane, planeColour()}})
        painter.strokePath(toScreen.map(pathOf(*curve)), QPen(colour, kCurveWidth));
}

}  // namespace penwright
