#pragma once

#include <QString>

#include "core/PhotometricRecord.h"
#include "hostbench/XDisplay.h"

namespace penwright {

/// Types a luminaire into the pages of the wizard that has the keyboard focus, as a user does who knows the tab order.
/// Each page must just have been opened, its first field focused, nothing typed in it yet.
class LuminaireTyper {
public:
    /// Both outlive the typer. The luminaire's shape is a rectangle with luminous sides: all dimensions positive.
    LuminaireTyper(XDisplay &display, const PhotometricRecord &luminaire);

    /// What a page, counted from 1, has as its caption and as the title of the wizard's window.
    static QString captionOf(int page);

    /// Fills in one of pages 1 to 5.
    void typePage(int page);

    /// Page 1: all fields, meters, and tilt information included.
    void typeGeneralInfo();

    /// Page 2: count, geometry, and the table of angles and factors down its two columns.
    void typeTilt();

    /// Page 3: the descriptions of the built-in keyword block, row by row.
    void typeKeywords();

    /// Page 4: type C, and the predefined angles from 0 to 180 by 5 and from 0 to 90 by 22.5 degrees.
    void typeDistribution();

    /// Page 5: has the whole table pasted from the clipboard.
    void pasteCandelas();

    /// A luminaire's candelas as a spreadsheet offers them: a line for each vertical angle, the values tab-delimited.
    static QString candelaTable(const PhotometricRecord &luminaire);

    /// Why something could not be typed, "" while all could.
    const QString &problem() const { return m_problem; }

private:
    void press(std::uint32_t key, int times = 1, std::uint32_t modifier = 0);
    void type(const std::string &text);
    void typeColumn(const OneBased<float> &values);

    XDisplay &m_display;
    const PhotometricRecord &m_luminaire;
    QString m_problem;
};

}  // namespace penwright
