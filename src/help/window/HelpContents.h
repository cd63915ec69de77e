#pragma once

#include <QTreeWidget>

#include <vector>

#include "help/HelpFile.h"

namespace penwright {

/// The contents tree of a help file. To walk through it is to read: each line that becomes the current one is asked
/// for.
class HelpContents : public QTreeWidget {
    Q_OBJECT

public:
    explicit HelpContents(QWidget *parent = nullptr);

    void setEntries(const std::vector<HelpEntry> &entries);

    /// Makes the line of a page the current one, without asking for the page. A line of the very place comes before the
    /// first line of its page; without any there is no current line.
    void setPlace(const HelpPlace &place);

signals:
    void placeAsked(const penwright::HelpPlace &place);

private:
    void askFor(const QTreeWidgetItem *item);

    std::vector<std::pair<HelpPlace, QTreeWidgetItem *>> m_places;
};

}  // namespace penwright
