#pragma once

#include <QWidget>
#include <vector>

#include "core/PhotometricRecord.h"
#include "plot/PlotCurves.h"
#include "plot/PlotRings.h"

namespace penwright {

/// A file's candelas as a polar diagram: the vertical plane through a horizontal angle and, for type C, the cone
/// through a vertical angle. Round in any shape of its place, in the colours of the palette.
class PolarPicture : public QWidget {
    Q_OBJECT

public:
    explicit PolarPicture(QWidget *parent = nullptr);

    /// Shows the two curves; angles in degrees. A record whose lists disagree shows the empty grid.
    void showCurves(const PhotometricRecord &record, float horizontalAngle, float verticalAngle);

    /// Shows the empty grid.
    void clear();

    QColor planeColour() const;
    QColor coneColour() const;

    QSize sizeHint() const override { return {320, 320}; }
    QSize minimumSizeHint() const override { return {140, 140}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool isDark() const;
    void paintDegrees(QPainter &painter, const QPointF &centre, double radius) const;
    void paintGrid(QPainter &painter, const QPointF &centre, double radius) const;

    PlotCurves m_curves;
    std::vector<PlotRing> m_rings;
};

}  // namespace penwright
