#pragma once

#include <QPointer>
#include <QString>

#include <optional>
#include <vector>

#include "draft/PageValue.h"
#include "grid/GridEdit.h"

class QLineEdit;
class QWidget;

namespace penwright {

class GridView;

/// The named controls of a form that hold what a user puts in: text boxes that can be typed into, lists, options and
/// check boxes, in the order of the form, then its grids.
class PageFields {
public:
    PageFields() = default;
    explicit PageFields(const QWidget &form);

    const std::vector<QWidget *> &boxes() const { return m_boxes; }
    const std::vector<GridView *> &grids() const { return m_grids; }

    /// What a box holds: the text, of a closed list the position counted from 0 or -1, of an option and a check box "1"
    /// or "0".
    static QString textOf(const QWidget &box);

    /// The text that is typed into a box; none for options and closed lists.
    static QLineEdit *lineOf(QWidget *box);

    /// Gives a box what it held once. Nothing that follows a user's change runs.
    static void put(QWidget &box, const QString &text);

    /// What stands in all of them.
    PageValue value() const;

    /// What `text` makes of the grids that it names, once every name and every text of it has proved to be one that can
    /// stand here; nothing otherwise. Changes nothing yet.
    struct Change {
        GridView *grid;
        GridEdit edit;
    };
    std::optional<std::vector<Change>> changes(const PageText &text) const;

private:
    bool canHold(const QWidget &box, const std::string &text, const PageText &all) const;

    std::vector<QWidget *> m_boxes;
    std::vector<GridView *> m_grids;
};

}  // namespace penwright
