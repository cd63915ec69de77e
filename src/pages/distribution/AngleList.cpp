#include "pages/distribution/AngleList.h"

#include <algorithm>
#include <utility>

#include "core/NumberText.h"
#include "core/PhotometricRecord.h"
#include "grid/GridBlock.h"
#include "grid/HeldCells.h"

namespace penwright {
namespace {

constexpr char kNumber = '=';
constexpr char kText = '\'';

/// A cell from the line that it is held as.
std::optional<AngleCell> cellFrom(std::string_view line)
{
    const char kind = line.empty() ? '\0' : line.front();
    if (kind == kNumber)
        return heldNumber<float>(line.substr(1));
    if (kind == kText)
        return heldText(line.substr(1));
    return std::nullopt;
}

/// Which tokens of an entry hold the first angle and the step, counted from 0.
struct AngleTokens {
    int first;
    int step;
};

AngleTokens tokensOf(std::int16_t photometricType, AngleAxis axis)
{
    if (photometricType == kTypeB)
        return {1, 4};
    return axis == AngleAxis::Vertical ? AngleTokens{2, 5} : AngleTokens{3, 6};
}

/// One token of a text cut at single blanks, without one trailing comma; error 9 when there are fewer.
std::string_view token(std::string_view text, int number)
{
    for (; number > 0; --number) {
        const std::size_t blank = text.find(' ');
        if (blank == std::string_view::npos)
            throw subscriptOutOfRange();
        text.remove_prefix(blank + 1);
    }
    text = text.substr(0, text.find(' '));
    if (text.ends_with(','))
        text.remove_suffix(1);
    return text;
}

/// The single in a cell; nothing where it holds no number or one beyond the range.
std::optional<float> singleOrNone(const AngleCell &cell)
{
    try {
        return singleIn(cell);
    } catch (const RunTimeError &) {
        return std::nullopt;
    }
}

AngleCells blankCells(int count)
{
    if (count < 1)
        throw subscriptOutOfRange();
    AngleCells cells(count);
    std::fill(cells.begin(), cells.end(), AngleCell(std::string(kBlankAngle)));
    return cells;
}

AngleCells entryCells(std::string_view text, std::int16_t photometricType, AngleAxis axis)
{
    AngleCells cells = blankCells(toInt16(token(text, 0)));
    float first = 0;
    float step = 0;
    const bool isLaterallySymmetric =
        photometricType != kTypeB && axis == AngleAxis::Horizontal && cells.size() == 1;  // spells out no angles
    if (!isLaterallySymmetric) {
        const AngleTokens tokens = tokensOf(photometricType, axis);
        first = toSingle(token(text, tokens.first));
        step = toSingle(token(text, tokens.step));
    }
    for (int i = 1; i <= cells.size(); ++i)
        cells(i) = toSingle(static_cast<float>(i - 1) * step + first);
    return cells;
}

}  // namespace

std::string HeldAngles::textOf(const AngleCells &cells)
{
    std::string text;
    for (const AngleCell &cell : cells) {
        if (const auto *number = std::get_if<float>(&cell))
            appendHeldNumber(text += kNumber, *number);
        else
            appendHeldText(text += kText, std::get<std::string>(cell));
        text += '\n';
    }
    return text;
}

std::optional<AngleCells> HeldAngles::valuesOf(std::string_view text)
{
    AngleCells values;
    for (HeldCells cells(text); !cells.isAtEnd();) {
        const auto line = cells.next('\n');
        auto cell = line ? cellFrom(*line) : std::nullopt;
        if (!cell || values.size() == AngleList::kMostAngles)
            return std::nullopt;
        values.append(*std::move(cell));
    }
    return values;
}

std::size_t HeldAngles::bytesOf(const AngleCells &cells)
{
    std::size_t bytes = 0;
    for (const AngleCell &cell : cells) {
        const auto *text = std::get_if<std::string>(&cell);
        bytes += sizeof(AngleCell) + (text ? bytesOfText(*text) : 0);
    }
    return bytes;
}

std::optional<double> numberIn(const AngleCell &cell)
{
    if (const auto *number = std::get_if<float>(&cell))
        return *number;
    const auto &text = std::get<std::string>(cell);
    return isNumeric(text) ? std::optional(toDouble(text)) : std::nullopt;
}

float singleIn(const AngleCell &cell)
{
    const auto number = numberIn(cell);
    if (!number)
        throw typeMismatch();
    return toSingle(*number);
}

AngleCells cellsOf(const OneBased<float> &angles, int count)
{
    AngleCells cells;
    for (int i = 1; i <= count && i <= angles.size(); ++i)
        cells.append(angles(i));
    return cells;
}

bool areSameAngles(const AngleCells &one, const AngleCells &other)
{
    const auto isSame = [](const AngleCell &a, const AngleCell &b) {
        const auto single = singleOrNone(a);
        return single && single == singleOrNone(b);
    };
    return one.size() == other.size() && std::equal(one.begin(), one.end(), other.begin(), isSame);
}

std::optional<AngleList::Resizing> AngleList::resize(std::string_view text, std::int16_t photometricType)
{
    if (text.starts_with("Type"))
        return std::nullopt;
    try {
        if (leadingNumber(text) <= kMostAngles)
            return Resizing{
                resized(isNumeric(text) ? blankCells(toInt16(text)) : entryCells(text, photometricType, m_axis)),
                false};
    } catch (const RunTimeError &) {  // a text that makes no list is replaced without a message
    }
    return Resizing{resized(blankCells(1)), true};
}

/// A list that stays what it is makes no step: each letter of a word is answered by one blank angle.
GridEdit AngleList::resized(AngleCells now)
{
    return now == cells() ? GridEdit() : replacement("New Count", std::move(now));
}

void AngleList::readCell(int column, std::string &value) const
{
    if (column >= 0 && column < cells().size()) {
        const AngleCell &cell = cells()(column + 1);
        const auto *number = std::get_if<float>(&cell);
        value = number ? generalText(*number) : std::get<std::string>(cell);
    } else if (m_axis == AngleAxis::Vertical) {
        value = kBlankAngle;
    }
}

RelativeRow AngleList::relativeRow(std::string_view start, int offset)
{
    const int row = rowAtDistance(start, offset < 0 ? 1 : 0, offset);
    return {row == 1 ? "1" : "", row};
}

std::string AngleList::rowName(int) const
{
    return m_axis == AngleAxis::Vertical ? "Vertical angle" : "Horizontal angle";
}

std::string AngleList::read(int, int column) const
{
    std::string value;
    readCell(column, value);
    return value;
}

GridEdit AngleList::paste(const GridBlock &block, std::string_view text, const std::string &title)
{
    GridEdit edit{.name = "Paste", .block = block};
    if (text.empty())
        return edit;
    if (block.firstRow < 1)
        return pasteWithoutCell();
    for (int column = block.firstColumn; auto &line : splitGridBlock(text))
        for (std::string &cell : line)
            edit.texts.push_back({1, column++, std::move(cell)});
    const auto room = static_cast<std::size_t>(columnCount() - block.firstColumn);
    if (edit.texts.size() > room) {
        edit.refused = {.row = 1,
                        .column = block.firstColumn,
                        .box = {.text = "The copied block has " + std::to_string(edit.texts.size()) +
                                        " angles. From here on there is room for " + std::to_string(room) + ".",
                                .title = title}};
        edit.texts.clear();
    }
    return edit;
}

void AngleList::write(AngleCells &cells, int, int column, std::string_view text) const
{
    cells(column + 1) = std::string(text);
}

}  // namespace penwright
