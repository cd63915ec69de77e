#include "plot/PlotExport.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgGenerator>

#include "plot/PlotPainter.h"

namespace penwright {

namespace {

constexpr QSize kPolarSize{640, 640};
constexpr QSize kLinearSize{800, 500};
constexpr int kLegendLine = 24;  // height, in the units of the sizes
constexpr int kMargin = 16;
constexpr int kFontSize = 15;
constexpr int kPixels = 2;  // of each unit

PlotLook exportedLook()
{
    PlotLook look = kPaperLook;
    look.curveWidth = 2;
    return look;
}

int legendLines(const PlotPicture &picture)
{
    return picture.coneName.empty() ? 1 : 2;
}

QSize sizeOf(const PlotPicture &picture)
{
    const QSize size = picture.curves.shape == PlotShape::Linear ? kLinearSize : kPolarSize;
    return size + QSize(0, legendLines(picture) * kLegendLine + kMargin);
}

void paintLegend(QPainter &painter, int line, const QSize &size, int lines, const QColor &colour, const QString &text)
{
    constexpr int kSample = 28;
    const int middle = size.height() - kMargin - (lines - line) * kLegendLine + kLegendLine / 2;
    painter.setPen(QPen(colour, 2));
    painter.drawLine(kMargin, middle, kMargin + kSample, middle);
    painter.setPen(kPaperLook.letters);
    const QRect place(kMargin + kSample + kMargin / 2, middle - kLegendLine / 2, size.width(), kLegendLine);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, text);
}

void paint(QPainter &painter, const PlotPicture &picture)
{
    QFont font = painter.font();
    font.setPixelSize(kFontSize);
    const PlotLook look = exportedLook();
    const QSize size = sizeOf(picture);
    const int lines = legendLines(picture);
    const QSize plot = size - QSize(0, lines * kLegendLine + kMargin);
    painter.fillRect(QRect(QPoint(), size), look.paper);
    paintPlot(painter, QRectF(QPointF(), plot), font, picture, look);
    painter.setFont(font);
    paintLegend(painter, 0, size, lines, look.plane, QString::fromStdString(picture.planeName));
    if (!picture.coneName.empty())
        paintLegend(painter, 1, size, lines, look.cone, QString::fromStdString(picture.coneName));
}

}  // namespace

QImage plotImage(const PlotPicture &picture)
{
    QImage image(sizeOf(picture) * kPixels, QImage::Format_RGB32);
    image.setDevicePixelRatio(kPixels);
    QPainter painter(&image);
    paint(painter, picture);
    return image;
}

QByteArray plotPng(const PlotPicture &picture)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImage image = plotImage(picture);
    image.setDevicePixelRatio(1);
    image.save(&buffer, "PNG");
    return buffer.data();
}

QByteArray plotSvg(const PlotPicture &picture)
{
    QBuffer buffer;
    QSvgGenerator drawing;
    drawing.setOutputDevice(&buffer);
    drawing.setSize(sizeOf(picture));
    drawing.setViewBox(QRect(QPoint(), sizeOf(picture)));
    drawing.setTitle(QStringLiteral("Candela plot"));
    drawing.setDescription(QString::fromStdString(picture.words).toHtmlEscaped());
    QPainter painter(&drawing);
    paint(painter, picture);
    painter.end();
    return buffer.data();
}

}  // namespace penwright
