#include "core/IesText.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "core/NumberText.h"

namespace penwright {
namespace {

struct FoldRow {
    std::string_view firstLine;
    std::int16_t width;
};

constexpr FoldRow kFoldRows[]{{"IESNA91", 132}, {"IESNA:LM-63-1995", 132}, {"IESNA:LM-63-2002", 256}};
constexpr std::int16_t kOldestFormatWidth = 132;

std::int16_t narrowed(std::size_t length)
{
    if (length > static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max()))
        throw overflow();
    return static_cast<std::int16_t>(length);
}

/// Numbers joined by single blanks.
template <typename... Numbers>
std::string joined(Numbers... numbers)
{
    std::string text;
    (text.append(text.empty() ? "" : " ").append(generalText(numbers)), ...);
    return text;
}

/// The text of one file while it is built.
class IesFile {
public:
    explicit IesFile(std::string &text) : IesText(text) {}

    void append(const PhotometricRecord &record);

private:
    /// Appends one number, one separator or one whole line; a piece without a line end that would pass the fold width
    /// goes onto a new line, a separating blank too.
    void AppendIesPiece(std::string_view piece);
    void appendHeader(const PhotometricRecord &record);
    void appendNumbers(const OneBased<float> &numbers, int count);
    void appendCandela(const PhotometricRecord &record);

    std::string &IesText;
    std::int16_t IesLineWidth = 0;
    std::int16_t IesLineLength = 0;
};

void IesFile::AppendIesPiece(std::string_view piece)
{
    const std::size_t lineEnd = piece.rfind(kIesLineEnd);
    const std::int16_t together = narrowed(piece.size() + static_cast<std::size_t>(IesLineLength));
    if (lineEnd != std::string_view::npos) {
        IesText += piece;
        // Counted from the carriage return, a line that has just begun is 1 long, so that a folded line carries one
        // visible character less than the width. Readers of these files know them so.
        IesLineLength = narrowed(piece.size() - lineEnd - 1);
    } else if (together > IesLineWidth) {
        IesText += kIesLineEnd;
        IesText += piece;
        IesLineLength = narrowed(piece.size() + 1);
    } else {
        IesText += piece;
        IesLineLength = together;
    }
}

void IesFile::appendHeader(const PhotometricRecord &record)
{
    for (const std::string &line : record.Keywords)
        AppendIesPiece(line + "\r\n");
    if (!record.TiltIncl)
        return AppendIesPiece("TILT=NONE\r\n");
    AppendIesPiece("TILT=INCLUDE\r\n");
    AppendIesPiece(generalText(record.LampToLuminaireGeometry) + "\r\n");
    AppendIesPiece(generalText(record.NumTiltAngles) + "\r\n");
    appendNumbers(record.TiltAngles, record.NumTiltAngles);
    appendNumbers(record.TiltMultipliers, record.NumTiltAngles);
}

void IesFile::appendNumbers(const OneBased<float> &numbers, int count)
{
    for (int i = 1; i <= count; ++i) {
        AppendIesPiece(generalText(numbers(i)));
        AppendIesPiece(i >= count ? "\r\n" : " ");
    }
}

// The last row gets no line end here: writing the file ends it.
void IesFile::appendCandela(const PhotometricRecord &record)
{
    std::string number;
    for (int h = 1; h <= record.NumHorzAngles; ++h) {
        for (int v = 1; v <= record.NumVertAngles; ++v) {
            number.clear();
            appendGeneralText(number, record.Candela(h, v));
            AppendIesPiece(number);
            if (v < record.NumVertAngles)
                AppendIesPiece(" ");
        }
        if (h < record.NumHorzAngles)
            AppendIesPiece("\r\n");
    }
}

void IesFile::append(const PhotometricRecord &record)
{
    IesLineWidth = foldWidth(record.Keywords(1));
    appendHeader(record);
    AppendIesPiece(joined(record.NumLamps, record.LumensPerLamp, record.CandelaMultiplier, record.NumVertAngles,
                          record.NumHorzAngles, record.PhotometricType, record.UnitsType, record.Width, record.Length,
                          record.Height) +
                   "\r\n");
    AppendIesPiece(generalText(record.BallastFactor) + " 1 " + generalText(record.InputWatts) + "\r\n");
    appendNumbers(record.VertAngles, record.NumVertAngles);
    appendNumbers(record.HorAngles, record.NumHorzAngles);
    appendCandela(record);
}

}  // namespace

std::int16_t foldWidth(std::string_view firstLine)
{
    const auto row = std::find_if(std::begin(kFoldRows), std::end(kFoldRows),
                                  [firstLine](const FoldRow &r) { return r.firstLine == firstLine; });
    return row == std::end(kFoldRows) ? kOldestFormatWidth : row->width;
}

void appendIesText(std::string &text, const PhotometricRecord &record)
{
    IesFile(text).append(record);
}

std::string iesFileText(const PhotometricRecord &record)
{
    std::string text;
    appendIesText(text, record);
    return text.append(kIesLineEnd);
}

}  // namespace penwright
