#include "grid/TableAxes.h"
#include "grid/TableLines.h"
#include "grid/TableListGuess.h"
#include "grid/TableSample.h"
#include "grid/TableSigns.h"
#include "grid/TableText.h"
#include "grid/UnitWords.h"

namespace penwright {

TableReading guessTable(std::string_view text)
{
    TableReading reading;
    const std::string_view beginning = sampleText(text);
    const TableSample sample = tableSample(beginning);
    reading.separator = sample.separator;
    if (sample.width == 0)
        return reading;
    findSigns(sample, reading);
    if (!findList(sample, text, reading))
        findAxes(sample, reading);
    reading.unit = unitOf(beginning, sample, reading);
    return reading;
}

}  // namespace penwright
