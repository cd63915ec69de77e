#include "review/Photometry.h"

#include "review/TableFault.h"

namespace penwright {
namespace {

std::optional<LargestValue> largestOf(const PhotometricRecord &record)
{
    LargestValue largest;
    for (int h = 1; h <= record.NumHorzAngles; ++h) {
        const auto row = record.Candela.row(h).first(static_cast<std::size_t>(record.NumVertAngles));
        for (std::size_t v = 0; v < row.size(); ++v)
            if (row[v] > largest.candela)
                largest = {row[v], h, static_cast<int>(v) + 1};
    }
    return largest.candela > 0 ? std::optional(largest) : std::nullopt;
}

}  // namespace

Photometry photometryOf(const PhotometricRecord &record)
{
    const std::string fault = tableFault(record);
    const std::string angleFault = fault.empty() ? fallingAngles(record) : fault;
    return {.fault = fault,
            .angleFault = angleFault,
            .isAbsolute = record.LumensPerLamp == -1,
            .lampLumens = double{record.LumensPerLamp} * record.NumLamps,
            .lumens = tableLumens(record, angleFault),
            .largest = fault.empty() ? largestOf(record) : std::nullopt,
            .planes = beamWidths(record, angleFault)};
}

}  // namespace penwright
