#pragma once

#include <optional>
#include <vector>

#include "core/CandelaCell.h"
#include "core/OneBased.h"
#include "core/PhotometricRecord.h"
#include "plot/PlotAngle.h"
#include "plot/PlotRuns.h"

namespace penwright {

/// What stands in the table for one angle: a listed one, or a share of the way from one neighbour to the next.
struct PlotPlace {
    int low = 0;
    int high = 0;
    double share = 0;
};

/// A record's angles with its candela, or with a page's cells, by (horizontal, vertical), read the way a picture needs
/// them. Refers to all of them. A blank cell, a negative value and one that is not finite are gaps; so is what lies
/// between a gap and a value.
class PlotTable {
public:
    /// Error 9 when the angle lists or the values are smaller than the record's counts.
    explicit PlotTable(const PhotometricRecord &record);
    PlotTable(const PhotometricRecord &record, const OneBasedTable<CandelaCell> &cells);

    bool empty() const { return m_record.NumHorzAngles == 0 || m_record.NumVertAngles == 0; }

    float firstHorizontal() const { return m_record.HorAngles(1); }
    float lastHorizontal() const { return m_record.HorAngles(m_record.NumHorzAngles); }

    /// Where an angle stands: its own place, else the first that lists it, else between the first neighbours that hold
    /// it in between.
    std::optional<PlotPlace> horizontalPlace(const PlotAngle &angle) const;
    std::optional<PlotPlace> verticalPlace(const PlotAngle &angle) const;

    /// The values of the vertical plane at a place, in the order of the vertical angles.
    std::vector<PlotNode> plane(const PlotPlace &horizontal) const;

    /// The values of the cone at a place, in the order of the horizontal angles.
    std::vector<PlotNode> cone(const PlotPlace &vertical) const;

private:
    void checkSize(int rows, int columns) const;
    std::optional<double> value(int h, int v) const;

    const PhotometricRecord &m_record;
    const OneBasedTable<CandelaCell> *m_cells;  ///< none: the record's own candela are read
};

}  // namespace penwright
