#include "core/CandelaCell.h"

#include "core/NumberText.h"

namespace penwright {

std::optional<double> numberOf(const CandelaCell &cell)
{
    if (const float *single = std::get_if<float>(&cell))
        return double{*single};
    if (const double *kept = std::get_if<double>(&cell))
        return *kept;
    return std::nullopt;
}

std::string textOf(const CandelaCell &cell)
{
    std::string text;
    appendTextOf(text, cell);
    return text;
}

void appendTextOf(std::string &text, const CandelaCell &cell)
{
    if (const float *single = std::get_if<float>(&cell))
        text += generalText(*single);
    else if (const double *kept = std::get_if<double>(&cell))
        appendGeneralText(text, *kept);
    else
        text += ' ';
}

}  // namespace penwright
