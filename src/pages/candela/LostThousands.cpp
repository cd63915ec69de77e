#include "pages/candela/LostThousands.h"

#include <algorithm>

#include "core/Ascii.h"

namespace penwright {
namespace {

constexpr double kThousand = 1000;
constexpr double kLeastNeighbour = 100;
constexpr double kMostStep = 4;  ///< from a value to the next along a plane or a cone

LostThousands::Place placeOf(int at, int columns)
{
    return {at % columns + 1, at / columns + 1};
}

/// Whether a value, were it thousands, would go on where a neighbour below a thousand ends.
bool goesOn(double low, double neighbour)
{
    return neighbour >= kLeastNeighbour && neighbour < kThousand && kThousand * low < kMostStep * neighbour;
}

}  // namespace

bool LostThousands::hasGroups(std::string_view text)
{
    const std::string_view first = text.substr(0, text.size() - 4);
    const std::string_view second = text.substr(text.size() - 3);
    return first.front() != '0' && std::all_of(first.begin(), first.end(), isDigit) &&
           std::all_of(second.begin(), second.end(), isDigit);
}

void LostThousands::note()
{
    if (m_isGrouped.empty())
        m_isGrouped.resize(static_cast<std::size_t>(m_count));
    m_isGrouped[static_cast<std::size_t>(m_at)] = true;
}

std::optional<LostThousands::Jump> LostThousands::jump(const OneBasedTable<CandelaCell> &cells) const
{
    const auto valueAt = [&cells](const Place &place) { return numberOf(cells(place.h, place.v)).value_or(0); };
    const auto isPlain = [this](int at) {
        return at >= 0 && at < m_count && !m_isGrouped[static_cast<std::size_t>(at)];
    };
    for (auto found = std::find(m_isGrouped.begin(), m_isGrouped.end(), true); found != m_isGrouped.end();
         found = std::find(found + 1, m_isGrouped.end(), true)) {
        const int at = static_cast<int>(found - m_isGrouped.begin());
        const Place low = placeOf(at, m_columns);
        for (const int other :
             {at - m_columns, low.h > 1 ? at - 1 : -1, low.h < m_columns ? at + 1 : -1, at + m_columns})
            if (const Place beside = placeOf(other, m_columns); isPlain(other) && goesOn(valueAt(low), valueAt(beside)))
                return Jump{low, beside};
    }
    return std::nullopt;
}

}  // namespace penwright
