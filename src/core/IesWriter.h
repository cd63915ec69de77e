#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/PhotometricRecord.h"

namespace penwright {

class Dialogs;
class TextFiles;

/// The folded line width of a header: 256 characters for the 2002 format line alone, 132 for any other first line.
/// The comparison is exact: "IESNA:LM-63-2002 " with a trailing blank, as the keyword page stores it, counts as any
/// other.
std::int16_t foldWidth(std::string_view firstLine);

/// Turns a photometric record into the text of an IES LM-63 file and writes it to disk.
class IesWriter {
public:
    IesWriter(TextFiles &files, Dialogs &dialogs) : m_files(files), m_dialogs(dialogs) {}

    /// Builds the text of `record` and writes it to its `Filename`. An error is told in one message with OK and Cancel.
    /// True: the file was written, at once or on the retry that OK asks for, which writes the text as it stands.
    /// False: the user chose Cancel, or the program is unloading. An error on the retry is raised to the caller.
    /// `record` may go while the message is shown: the retry does not look at it again.
    bool WriteIesFile(const PhotometricRecord &record);

    /// Builds the text of `record` without writing it; errors 6 and 9 when its counts and arrays disagree.
    void build(const PhotometricRecord &record);

    /// The text built so far, without the line end that the file gets behind it.
    const std::string &text() const { return IesText; }

private:
    /// Appends one number, one separator or one whole line; a piece without a line end that would pass the fold width
    /// goes onto a new line, a separating blank too.
    void AppendIesPiece(std::string_view piece);
    void appendHeader(const PhotometricRecord &record);
    void appendNumbers(const OneBased<float> &numbers, int count);
    void appendCandela(const PhotometricRecord &record);
    void write(const std::string &path);

    TextFiles &m_files;
    Dialogs &m_dialogs;
    std::string IesText;
    std::int16_t IesLineWidth = 0;
    std::int16_t IesLineLength = 0;
};

}  // namespace penwright
