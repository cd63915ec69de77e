#include "pages/keywords/KeywordLines.h"

#include "pages/keywords/KeywordTable.h"

namespace penwright {
namespace {

class RowCheck {
public:
    RowCheck(int number, const KeywordRow &row, WarningList &dlgWarn)
        : m_number(number), m_row(row), m_dlgWarn(dlgWarn), m_line("line:" + std::to_string(number))
    {
    }

    /// Whether the row is the version line, with nothing behind it.
    bool run() const
    {
        const bool isVersion = m_number == 1 && isVersionLine(m_row.key);
        if (isVersion && !m_row.value.empty())
            addAt(KeywordRows::kValue, "line: 1  first line must contain only IESNA:LM-63-2002 or IESNA:LM-63-1995");
        else if (!isVersion)
            checkKey();
        if (m_row.length() > kMostLineCharacters)
            addAt(KeywordRows::kValue, m_line + " must be less than 254 characters total. please use a [MORE]");
        return isVersion && m_row.value.empty();
    }

private:
    void checkKey() const
    {
        if (isUserKeyword(m_row.key))
            return;
        if (!m_row.key.empty() && gfnIsValidKeyword(m_row.key) == 0)
            addAt(KeywordRows::kKey, m_line + " " + m_row.key + " not a valid IES or user keyword.");
        else if (m_row.key.empty() && !m_row.value.empty())
            addAt(KeywordRows::kKey, m_line + " value must have a keyword, like [MORE] or [OTHER].");
    }

    void addAt(int column, const std::string &text) const
    {
        m_dlgWarn.lookAt({.row = m_number, .column = column});
        m_dlgWarn.Add(text);
    }

    int m_number;
    const KeywordRow &m_row;
    WarningList &m_dlgWarn;
    std::string m_line;
};

std::string lineOf(const KeywordRow &row)
{
    return row.key + " " + row.value;
}

}  // namespace

bool gfnKeyVerify(const OneBased<KeywordRow> &rows, WarningList &dlgWarn)
{
    bool hasVersion = false;
    for (int row = 1; row <= rows.size(); ++row)
        hasVersion |= RowCheck(row, rows(row), dlgWarn).run();
    dlgWarn.lookAt({.row = 1, .column = KeywordRows::kKey});
    // A version line that is refused for its value counts as missing, too.
    if (!hasVersion)
        dlgWarn.Add("file must start with IES version number (i.e. IESNA:LM-63-1995)");
    return true;
}

std::string gfnKeyPull(const OneBased<KeywordRow> &rows, PhotometricRecord &record)
{
    record.Keywords.reset(rows.size());
    for (int row = 1; row <= rows.size(); ++row)
        record.Keywords(row) = lineOf(rows(row));
    return {};
}

void storeKeywordLines(const OneBased<KeywordRow> &rows, PhotometricRecord &record)
{
    record.Keywords.reset(rows.size());
    for (int row = 1; row <= rows.size(); ++row)
        if (!rows(row).key.empty())
            record.Keywords(row) = lineOf(rows(row));
}

}  // namespace penwright
