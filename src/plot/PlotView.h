#pragma once

#include <QFrame>

#include <vector>

#include "core/CandelaCell.h"
#include "core/OneBased.h"
#include "core/PhotometricRecord.h"
#include "plot/PlotCurves.h"
#include "plot/PlotRings.h"

namespace penwright {

/// The picture box of the candela page: the vertical plane through a horizontal angle in blue and, for type C, the cone
/// through a vertical angle in red, as a polar diagram that stays round in any shape of the box. White in every
/// palette. Its accessible description tells each curve's largest value.
class PlotView : public QFrame {
    Q_OBJECT

public:
    explicit PlotView(QWidget *parent = nullptr);

    /// Shows the two curves; angles in degrees, cells indexed (horizontal, vertical). Only counts, type and angles of
    /// the record are read. Keeps none of the arguments; reads one plane, its opposite and one cone of the cells.
    /// Error 9 when the angle lists or the cells are smaller than the record's counts, 6 when a value is beyond the
    /// single range; the picture is then the one before.
    void draw(const PhotometricRecord &record, const OneBasedTable<CandelaCell> &cells, float horizontalAngle,
              float verticalAngle);

    QSize sizeHint() const override { return {280, 280}; }
    QSize minimumSizeHint() const override { return {80, 80}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    PlotCurves m_curves;
    std::vector<PlotRing> m_rings;
};

}  // namespace penwright
