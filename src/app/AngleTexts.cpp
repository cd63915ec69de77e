#include "app/AngleTexts.h"

#include <string>

#include "pages/distribution/DistributionPage.h"

namespace penwright {
namespace {

AngleCells cellsOf(const OneBased<float> &angles, int count)
{
    AngleCells cells;
    for (int i = 1; i <= count && i <= angles.size(); ++i)
        cells.append(angles(i));
    return cells;
}

}  // namespace

TableGround groundOfRecord(const PhotometricRecord &record)
{
    return {record.PhotometricType, cellsOf(record.VertAngles, record.NumVertAngles),
            cellsOf(record.HorAngles, record.NumHorzAngles)};
}

PageText angleTexts(const DistributionPage &page, const TableGround &wanted, bool isStepThere)
{
    const DistributionFields shown = page.readFields();
    PageText text;
    const auto putList = [&](const char *box, const char *grid, const AngleCells &cells, const AngleCells &before) {
        const bool isSame = areSameAngles(cells, before);
        if (!isSame)
            text[box] = std::to_string(cells.size());
        if (!isSame || isStepThere)
            text[grid] = HeldAngles::textOf(isSame ? before : cells);
    };
    putList("phoCmbVert", "phoGridVert", wanted.vertical, shown.vertical);
    putList("phoCmbHorz", "phoGridHorz", wanted.horizontal, shown.horizontal);
    const bool isTypeB = wanted.photometricType == kTypeB;
    if (!page.hasType() || shown.photometricType != wanted.photometricType) {
        text["rdoC"] = isTypeB ? "0" : "1";
        text["rdoB"] = isTypeB ? "1" : "0";
    }
    return text;
}

void followTable(DistributionPage &page, const PhotometricRecord &record)
{
    const PageText text = angleTexts(page, groundOfRecord(record), false);
    if (!text.empty())
        page.showValue(text, "Angles of the Table");
}

}  // namespace penwright
