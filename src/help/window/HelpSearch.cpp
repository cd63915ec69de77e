#include "help/window/HelpSearch.h"

#include <algorithm>

namespace penwright {
namespace {

bool contains(const QString &text, const QString &word)
{
    return text.contains(word, Qt::CaseInsensitive);
}

}  // namespace

QStringList wordsOf(const QString &question)
{
    return question.simplified().split(' ', Qt::SkipEmptyParts);
}

HelpSearch::HelpSearch(const std::vector<HelpText> &texts)
{
    for (const HelpText &text : texts)
        m_pages.push_back({text.topic, QString::fromStdString(text.title), QString::fromStdString(text.text)});
}

std::vector<FoundPage> HelpSearch::pagesWith(const QStringList &words) const
{
    std::vector<FoundPage> inTitle;
    std::vector<FoundPage> inText;
    for (const Page &page : m_pages) {
        const auto isInTitle = [&](const QString &word) { return contains(page.title, word); };
        const auto isAnywhere = [&](const QString &word) { return isInTitle(word) || contains(page.text, word); };
        if (words.isEmpty() || !std::all_of(words.begin(), words.end(), isAnywhere))
            continue;
        const bool isFirst = std::any_of(words.begin(), words.end(), isInTitle);
        (isFirst ? inTitle : inText).push_back({page.topic, page.title});
    }
    inTitle.insert(inTitle.end(), inText.begin(), inText.end());
    return inTitle;
}

}  // namespace penwright
