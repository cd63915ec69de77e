#pragma once

#include <QObject>

#include "app/TableFit.h"
#include "draft/PageValue.h"

namespace penwright {

class CandelaPage;
class Closing;
class Dialogs;
class DistributionPage;
class PageFrame;
class TextFiles;
class WizardWindow;
struct TablePurpose;

/// Puts a table that is pasted where it belongs: its angles on page 4, its values on page 5, whichever of the two asks
/// for it, as one step. It can be undone on both pages; on page 5 not where there was no table before.
class TablePaste : public QObject {
public:
    /// For the two pages of a window, whose child it becomes. What it is given outlives it.
    TablePaste(WizardWindow &window, DistributionPage &angles, CandelaPage &values, TextFiles &files,
               const Closing &closing);

private:
    void paste(PageFrame &page);
    void ask(PageFrame &page);
    TableGround groundOf(const PageFrame &page) const;
    TablePurpose purposeOf(const PageFrame &page, const TableGround &ground) const;
    void put(PageFrame &page, const FittedTable &table);

    WizardWindow &m_window;
    DistributionPage &m_angles;
    CandelaPage &m_values;
    TextFiles &m_files;
    const Closing &m_closing;
};

}  // namespace penwright
