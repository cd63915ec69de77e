#include "review/TableFault.h"

namespace penwright {
namespace {

std::string disagreement(int counted, const std::string &what, int held)
{
    return "The record counts " + std::to_string(counted) + what + std::to_string(held) + ".";
}

bool rises(const OneBased<float> &angles, int count)
{
    for (int i = 1; i < count; ++i)
        if (!(angles(i) <= angles(i + 1)))
            return false;
    return angles(1) == angles(1);
}

}  // namespace

std::string tableFault(const PhotometricRecord &record)
{
    const int vertical = record.NumVertAngles;
    const int horizontal = record.NumHorzAngles;
    if (vertical <= 0 || horizontal <= 0)
        return "The table has no values.";
    if (record.VertAngles.size() < vertical)
        return disagreement(vertical, " vertical angles and holds ", record.VertAngles.size());
    if (record.HorAngles.size() < horizontal)
        return disagreement(horizontal, " horizontal angles and holds ", record.HorAngles.size());
    if (record.Candela.rows() < horizontal)
        return disagreement(horizontal, " planes of values and holds ", record.Candela.rows());
    if (record.Candela.columns() < vertical)
        return disagreement(vertical, " values in a plane and holds ", record.Candela.columns());
    return "";
}

std::string fallingAngles(const PhotometricRecord &record)
{
    if (!rises(record.VertAngles, record.NumVertAngles))
        return "The vertical angles do not rise.";
    if (!rises(record.HorAngles, record.NumHorzAngles))
        return "The horizontal angles do not rise.";
    return "";
}

}  // namespace penwright
