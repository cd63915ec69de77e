#pragma once

#include <QRegularExpression>
#include <QValidator>

namespace penwright {

/// Keeps a text box to one line however a text gets in, by key, menu, mouse or drop: line ends at its end go, as
/// spreadsheets put one behind a cell, and those before it and tabs become blanks. The toolkit would keep them, unseen.
class OneLine : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString &text, int &cursor) const override
    {
        static const QRegularExpression kInside("\\r\\n|[\\r\\n\\t]");
        if (text.contains(kInside)) {
            // An expression for the line ends at the end would be tried at each one before them.
            qsizetype end = text.size();
            while (end > 0 && (text[end - 1] == '\r' || text[end - 1] == '\n'))
                --end;
            text.truncate(end);
            text.replace(kInside, " ");
            cursor = std::min(cursor, static_cast<int>(text.size()));
        }
        return Acceptable;
    }
};

}  // namespace penwright
