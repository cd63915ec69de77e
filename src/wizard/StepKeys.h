#pragma once

#include <QObject>

class QContextMenuEvent;
class QKeyEvent;

namespace penwright {

class GivenUpTexts;
class GridView;
class PageFields;
class PageSteps;

/// Brings the steps of the page that is shown to Ctrl+Z, Ctrl+Shift+Z and Ctrl+Y, and into the menus of its boxes,
/// where they take the place of the toolkit's own. In the open editor of a cell the keys are the editor's, unless it
/// holds what undo has brought back.
class StepKeys : public QObject {
    Q_OBJECT

public:
    /// Lives as long as `page`; the others outlive it.
    StepKeys(QWidget &page, const PageFields &fields, PageSteps &steps, const GivenUpTexts &givenUp);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isOnPage(const QWidget &widget) const;
    bool press(const QWidget &widget, const QKeyEvent &event);
    bool openMenu(const QWidget &widget, const QContextMenuEvent &event);
    GridView *gridOfEditor(const QWidget &widget) const;

    QWidget &m_page;
    const PageFields &m_fields;
    PageSteps &m_steps;
    const GivenUpTexts &m_givenUp;
};

}  // namespace penwright
