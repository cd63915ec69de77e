#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPen>
#include <QPolygonF>

#include <map>
#include <string>
#include <vector>

namespace penwright::test {

/// Notes what is painted: each text with the place where it begins on its base line, each line with its pen.
class PaintNotes : public QPaintEngine {
public:
    struct Line {
        QPen pen;
        QPolygonF points;
    };
    std::multimap<std::string, QPointF> texts;
    std::vector<Line> lines;

    PaintNotes() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &change) override
    {
        if (change.state() & DirtyPen)
            m_pen = change.pen();
    }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    void drawPolygon(const QPointF *points, int count, PolygonDrawMode mode) override
    {
        if (mode == PolylineMode)
            lines.push_back({m_pen, QPolygonF(QList<QPointF>(points, points + count))});
    }
    void drawTextItem(const QPointF &place, const QTextItem &item) override
    {
        texts.emplace(item.text().toStdString(), place);
    }
    Type type() const override { return User; }

private:
    QPen m_pen;
};

/// A square of 400 pixels on which paint leaves notes.
class NotedPaper : public QPaintDevice {
public:
    explicit NotedPaper(PaintNotes &notes) : m_notes(notes) {}

    QPaintEngine *paintEngine() const override { return &m_notes; }

protected:
    int metric(PaintDeviceMetric which) const override
    {
        switch (which) {
            case PdmWidth:
            case PdmHeight:
                return 400;
            case PdmDpiX:
            case PdmDpiY:
            case PdmPhysicalDpiX:
            case PdmPhysicalDpiY:
                return 96;
            case PdmDepth:
                return 32;
            default:
                return QPaintDevice::metric(which);
        }
    }

private:
    PaintNotes &m_notes;
};

}  // namespace penwright::test
