#include "wizard/PageSteps.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <utility>

#include "grid/GridModel.h"
#include "grid/GridView.h"
#include "wizard/PageFields.h"
#include "wizard/StepPair.h"

namespace penwright {
namespace {

bool beginsAct(QEvent::Type type)
{
    switch (type) {
        case QEvent::KeyPress:
        case QEvent::Shortcut:
        case QEvent::InputMethod:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Drop:
        case QEvent::ContextMenu:
            return true;
        default:
            return false;
    }
}

/// Whether an event ends a go of typing, where it comes to the box that is typed into, too.
bool endsGo(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick || type == QEvent::Drop;
}

TypingGo::Key kindOf(const QKeyEvent &key)
{
    if (key.key() == Qt::Key_Backspace || key.key() == Qt::Key_Delete)
        return TypingGo::Key::Deletion;
    const auto modifiers = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier);  // together they type, too
    const bool isCharacter = !key.text().isEmpty() && key.text()[0].isPrint() && modifiers != Qt::ControlModifier;
    return isCharacter ? TypingGo::Key::Character : TypingGo::Key::Other;
}

QAction *makeAction(const char *name, const QList<QKeySequence> &keys, QObject *parent)
{
    auto *action = new QAction(parent);
    action->setObjectName(name);
    action->setShortcuts(keys);  // shown in menus alone: the keys come before those of the boxes
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setShortcutVisibleInContextMenu(true);
    return action;
}

void show(QAction &action, const QString &verb, const QString &step, bool isThere)
{
    action.setText(isThere ? verb + ' ' + step : verb);
    action.setEnabled(isThere);
}

}  // namespace

PageSteps::PageSteps(QWidget &page, const PageFields &fields, std::function<void()> follow,
                     std::function<bool()> isBusy, std::size_t mostBytes)
    : QObject(&page),
      m_page(page),
      m_fields(fields),
      m_follow(std::move(follow)),
      m_isBusy(std::move(isBusy)),
      m_mostBytes(mostBytes),
      m_undo(makeAction("undoStep", {QKeySequence("Ctrl+Z")}, this)),
      m_redo(makeAction("redoStep", {QKeySequence("Ctrl+Shift+Z"), QKeySequence("Ctrl+Y")}, this))
{
    connect(m_undo, &QAction::triggered, this, &PageSteps::undo);
    connect(m_redo, &QAction::triggered, this, &PageSteps::redo);
    connect(qApp, &QApplication::focusChanged, this, [this] { m_go.endWithAct(); });
    for (GridView *grid : m_fields.grids()) {
        grid->setStepActions(m_undo, m_redo);
        connect(&grid->changes(), &GridModel::made, this, [this, grid](const std::shared_ptr<GridEdit> &edit) {
            m_made.push_back({grid, edit, {}, {}});
            endActSoon();
        });
        connect(&grid->changes(), &GridModel::actEnded, this, &PageSteps::endAct);
    }
    qApp->installEventFilter(this);
    forgetAll();
}

void PageSteps::look()
{
    m_texts.clear();
    for (const QWidget *box : m_fields.boxes())
        m_texts.push_back(PageFields::textOf(*box));
    m_cells.clear();
    for (const GridView *grid : m_fields.grids())
        m_cells.push_back({grid->currentRow(), grid->currentColumn()});
    m_focus = m_page.window()->focusWidget();
    m_made.clear();
    m_name.clear();
}

void PageSteps::forgetAll()
{
    m_stack.clear();
    look();
    showActions();
}

void PageSteps::beginAct(const QString &name)
{
    endAct();
    m_name = name;
}

// What brings a text at once, or takes it away, has a name of its own and is none with what is typed.
void PageSteps::noteKey(const QObject *watched, const QKeyEvent &key)
{
    const auto isWatched = [watched](QWidget *box) { return box == watched || PageFields::lineOf(box) == watched; };
    const auto box = std::find_if(m_fields.boxes().begin(), m_fields.boxes().end(), isWatched);
    const QLineEdit *line = box == m_fields.boxes().end() ? nullptr : PageFields::lineOf(*box);
    if (!line)
        return;
    if (key.matches(QKeySequence::Paste))
        m_name = "Paste";
    else if (key.matches(QKeySequence::Cut))
        m_name = "Cut";
    m_go.add(kindOf(key), line->hasSelectedText());
}

void PageSteps::endActSoon()
{
    if (std::exchange(m_isEndDue, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isEndDue = false;
            endAct();
        },
        Qt::QueuedConnection);
}

void PageSteps::endAct()
{
    std::vector<ChangedBox> boxes = changedBoxes();
    const bool isStep = !boxes.empty() || !m_made.empty();
    if (isStep)
        makeStep(std::move(boxes));
    look();
    m_go.actEnded();
    if (isStep)
        emit stepped();
}

void PageSteps::makeStep(std::vector<ChangedBox> boxes)
{
    for (ChangedGrid &made : m_made) {
        const auto grid = std::find(m_fields.grids().begin(), m_fields.grids().end(), made.grid);
        made.before = m_cells.at(static_cast<std::size_t>(grid - m_fields.grids().begin()));
        made.after = {made.grid->currentRow(), made.grid->currentColumn()};
    }
    QWidget *focus = boxInFocus(boxes);
    const QString name = nameOf(focus);
    const bool isTyped = boxes.size() == 1 && PageFields::lineOf(focus) && m_name.isEmpty();
    if (!isTyped)
        m_go.end();
    if (!focus)
        focus = fieldInFocus();
    push(new PageStep(std::move(boxes), std::move(m_made), focus, isTyped ? m_go.number() : 0, m_bytes), name);
}

void PageSteps::push(PageStep *step, const QString &name)
{
    step->setText(name);
    m_stack.push(step);
    giveUpOldest();
    showActions();
}

void PageSteps::addAct(const QString &name, std::function<void(bool isUndo)> change)
{
    endAct();
    m_go.end();
    push(new PageStep(std::move(change), m_bytes), name);
    emit stepped();
}

std::vector<ChangedBox> PageSteps::changedBoxes() const
{
    std::vector<ChangedBox> changed;
    for (std::size_t i = 0; i < m_texts.size(); ++i) {
        QWidget *box = m_fields.boxes()[i];
        if (QString now = PageFields::textOf(*box); now != m_texts[i])
            changed.push_back({box, m_texts[i], std::move(now)});
    }
    return changed;
}

/// What the menu calls the step: as its first change of a grid is called, or by its box.
QString PageSteps::nameOf(QWidget *box) const
{
    if (!m_name.isEmpty())
        return m_name;
    if (!m_made.empty())
        return QString::fromUtf8(m_made.front().edit->name);
    return PageFields::lineOf(box) ? QStringLiteral("Typing") : box->accessibleName().section(':', 0, 0);
}

/// The changed box that had the focus when the act began or has it now, the first one where none had.
QWidget *PageSteps::boxInFocus(const std::vector<ChangedBox> &boxes) const
{
    for (const QWidget *focus : {m_focus.data(), m_page.window()->focusWidget()})
        for (const ChangedBox &changed : boxes)
            if (changed.box == focus)
                return changed.box;
    return boxes.empty() ? nullptr : boxes.front().box;
}

/// The box that had the focus when the act began or has it now, changed or not.
QWidget *PageSteps::fieldInFocus() const
{
    for (QWidget *focus : {m_focus.data(), m_page.window()->focusWidget()})
        if (std::find(m_fields.boxes().begin(), m_fields.boxes().end(), focus) != m_fields.boxes().end())
            return focus;
    return nullptr;
}

void PageSteps::undo()
{
    step(true);
}

void PageSteps::redo()
{
    step(false);
}

void PageSteps::step(bool isUndo)
{
    endAct();
    if (m_isBusy() || !(isUndo ? canUndo() : canRedo()))
        return;
    prepareStep();
    const PageStep &step = *stepAt(m_stack.index() - (isUndo ? 1 : 0));
    isUndo ? m_stack.undo() : m_stack.redo();
    if (step.pair()) {
        const StepPair::Side &beside = step.pair()->sideBeside(step);
        beside.page->stepTo(*beside.step, isUndo);
    }
    if (step.isOnPage())
        m_follow();
    step.goThere(isUndo);
    endStep();
}

/// Undoes or redoes up to and with a step, whose other half on another page has just been.
void PageSteps::stepTo(const PageStep &step, bool isUndo)
{
    endAct();
    prepareStep();
    const int place = placeOf(step);
    while (isUndo ? m_stack.index() > place : m_stack.index() <= place)
        isUndo ? m_stack.undo() : m_stack.redo();
    m_follow();
    endStep();
}

bool PageSteps::seek(const std::function<bool()> &isSought)
{
    endAct();
    if (isSought())
        return true;
    prepareStep();
    const bool isFound = seek(isSought, true) || seek(isSought, false);
    m_follow();
    endStep();
    return isFound;
}

/// Seeks in one direction; comes back to where it was when that has no such state.
bool PageSteps::seek(const std::function<bool()> &isSought, bool isUndo)
{
    const int from = m_stack.index();
    while (canStepAlone(isUndo)) {
        isUndo ? m_stack.undo() : m_stack.redo();
        if (isSought())
            return true;
    }
    while (m_stack.index() != from)
        isUndo ? m_stack.redo() : m_stack.undo();
    return false;
}

/// Whether the step that is next has its content and is of this page alone.
bool PageSteps::canStepAlone(bool isUndo) const
{
    if (!(isUndo ? m_stack.canUndo() : m_stack.canRedo()))
        return false;
    const PageStep &step = *stepAt(m_stack.index() - (isUndo ? 1 : 0));
    return !step.isForgotten() && !step.pair();
}

void PageSteps::prepareStep()
{
    m_go.end();
    for (GridView *grid : m_fields.grids())
        grid->dropEdit();
}

void PageSteps::endStep()
{
    look();
    giveUpOldest();
    showActions();
    emit stepped();
}

void PageSteps::pairLatest(PageSteps &other, bool isUndoneThere)
{
    const PageStep *here = stepAt(m_stack.index() - 1);
    const PageStep *there = other.stepAt(other.m_stack.index() - 1);
    const auto pair = std::make_shared<StepPair>(StepPair{{this, here, true}, {&other, there, isUndoneThere}});
    here->pairUp(pair);
    there->pairUp(pair);
    // What one page gives up, the other one cannot offer any more.
    connect(&other, &PageSteps::stepped, this, &PageSteps::showActions, Qt::UniqueConnection);
    connect(this, &PageSteps::stepped, &other, &PageSteps::showActions, Qt::UniqueConnection);
    showActions();
    other.showActions();
}

std::shared_ptr<const bool> PageSteps::latestStands() const
{
    return m_stack.canUndo() ? stepAt(m_stack.index() - 1)->stands() : nullptr;
}

const PageStep *PageSteps::stepAt(int index) const
{
    return static_cast<const PageStep *>(m_stack.command(index));
}

int PageSteps::placeOf(const PageStep &step) const
{
    int place = 0;
    while (stepAt(place) != &step)
        ++place;
    return place;
}

bool PageSteps::canUndo() const
{
    return m_stack.canUndo() && stepAt(m_stack.index() - 1)->isInReach(true);
}

bool PageSteps::canRedo() const
{
    return m_stack.canRedo() && stepAt(m_stack.index())->isInReach(false);
}

// What has been undone goes last, and of that the farthest first: what is next stays in reach.
void PageSteps::giveUpOldest()
{
    for (int index = 0; m_bytes > m_mostBytes && index < m_stack.index(); ++index)
        if (!stepAt(index)->isForgotten())
            stepAt(index)->forget();
    for (int index = m_stack.count() - 1; m_bytes > m_mostBytes && index >= m_stack.index(); --index)
        if (!stepAt(index)->isForgotten())
            stepAt(index)->forget();
}

void PageSteps::showActions()
{
    show(*m_undo, "U&ndo", m_stack.undoText(), canUndo());
    show(*m_redo, "&Redo", m_stack.redoText(), canRedo());
}

bool PageSteps::eventFilter(QObject *watched, QEvent *event)
{
    if (beginsAct(event->type())) {
        endAct();
        endActSoon();
        if (event->type() == QEvent::KeyPress)
            noteKey(watched, *static_cast<QKeyEvent *>(event));
    }
    if (endsGo(event->type()))
        m_go.end();
    return QObject::eventFilter(watched, event);
}

}  // namespace penwright
