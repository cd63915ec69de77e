#include "pages/candela/StoreCandela.h"

#include <utility>

#include "core/NumberText.h"

namespace penwright {

void storeCandela(const OneBasedTable<CandelaCell> &cells, PhotometricRecord &record)
{
    OneBasedTable<double> candela(record.NumHorzAngles, record.NumVertAngles);
    for (int h = 1; h <= candela.rows(); ++h)
        for (int v = 1; v <= candela.columns(); ++v) {
            const std::optional<double> number = numberOf(cells(h, v));
            if (!number)
                throw typeMismatch();
            candela(h, v) = double{toSingle(*number)};
        }
    record.Candela = std::move(candela);
}

}  // namespace penwright
