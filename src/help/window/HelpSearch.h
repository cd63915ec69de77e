#pragma once

#include <QString>
#include <QStringList>

#include <string>
#include <vector>

#include "help/HelpFile.h"

namespace penwright {

/// The words of a question, without blanks around and between them.
QStringList wordsOf(const QString &question);

/// A page that was found.
struct FoundPage {
    std::string topic;
    QString title;
};

/// The pages of a help file by the words in them, case aside.
class HelpSearch {
public:
    /// Takes the texts in the order in which their pages are to be listed.
    explicit HelpSearch(const std::vector<HelpText> &texts);

    /// The pages that hold every one of the words, those first that have one in their titles.
    std::vector<FoundPage> pagesWith(const QStringList &words) const;

private:
    struct Page {
        std::string topic;
        QString title;
        QString text;
    };
    std::vector<Page> m_pages;
};

}  // namespace penwright
