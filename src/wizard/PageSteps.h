#pragma once

#include <QObject>
#include <QPointer>
#include <QUndoStack>

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

#include "wizard/PageStep.h"
#include "wizard/TypingGo.h"

class QAction;
class QKeyEvent;

namespace penwright {

class PageFields;

/// What the user has done on a page, step by step, to be undone and redone with Ctrl+Z, Ctrl+Shift+Z and Ctrl+Y and
/// from the menus of boxes and grids. One act is one step, whatever boxes and grids it changes; what is typed into one
/// box in one go is one, too. An act begins with a key, a click or a drop and ends when the next one begins, when the
/// event loop is reached or when something is undone; what changes apart from that, by the host, is a step as well.
///
/// The steps take 100 MB at most, the oldest are given up first.
class PageSteps : public QObject {
    Q_OBJECT

public:
    static constexpr std::size_t kMostBytes = 100'000'000;

    /// What it is given outlives it. `follow` shows what follows from boxes and grids; `isBusy` says when nothing is
    /// undone.
    PageSteps(QWidget &page, const PageFields &fields, std::function<void()> follow, std::function<bool()> isBusy,
              std::size_t mostBytes = kMostBytes);

    QAction *undoAction() const { return m_undo; }
    QAction *redoAction() const { return m_redo; }

    /// Undoes or redoes the step that is next, drops open editors, and goes to what has changed.
    void undo();
    void redo();

    bool canUndo() const;
    bool canRedo() const;

    /// Has what is changed until the next call of `endAct` be one step of this name.
    void beginAct(const QString &name);

    /// Makes one step of what has changed since the last act ended.
    void endAct();

    /// Makes one step of an act that has changed something beside boxes and grids; `change` undoes that, and makes it
    /// again.
    void addAct(const QString &name, std::function<void(bool isUndo)> change);

    /// Makes a pair of the latest step of this page and that of another one, both by the same act. To undo it on either
    /// page is to undo it on both, with what was done on the other page since, which can be redone there; to redo it
    /// likewise. `isUndoneThere` says whether the other page can ask for it.
    void pairLatest(PageSteps &other, bool isUndoneThere);

    /// Goes back or forth over steps of this page alone to the nearest state of which `isSought` says so, the present
    /// one first; false, and nothing has changed, where there is none.
    bool seek(const std::function<bool()> &isSought);

    /// Whether the latest step is made, now and later on; none where there is no step.
    std::shared_ptr<const bool> latestStands() const;

    /// Gives up all steps; what stands now is where undo ends.
    void forgetAll();

    /// How many steps have been made and not been undone, those given up among them.
    int count() const { return m_stack.index(); }

    /// The memory that the steps take.
    std::size_t bytes() const { return m_bytes; }

signals:
    /// A step has been made, undone or redone.
    void stepped();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void look();
    void endActSoon();
    void noteKey(const QObject *watched, const QKeyEvent &key);
    void makeStep(std::vector<ChangedBox> boxes);
    void push(PageStep *step, const QString &name);
    QString nameOf(QWidget *box) const;
    std::vector<ChangedBox> changedBoxes() const;
    QWidget *boxInFocus(const std::vector<ChangedBox> &boxes) const;
    QWidget *fieldInFocus() const;
    void step(bool isUndo);
    void stepTo(const PageStep &step, bool isUndo);
    bool seek(const std::function<bool()> &isSought, bool isUndo);
    bool canStepAlone(bool isUndo) const;
    void prepareStep();
    void endStep();
    const PageStep *stepAt(int index) const;
    int placeOf(const PageStep &step) const;
    void giveUpOldest();
    void showActions();

    QWidget &m_page;
    const PageFields &m_fields;
    std::function<void()> m_follow;
    std::function<bool()> m_isBusy;
    std::size_t m_mostBytes;
    std::size_t m_bytes = 0;  ///< before the stack, whose steps count with it until they are gone
    QUndoStack m_stack;
    QAction *m_undo;
    QAction *m_redo;

    std::vector<QString> m_texts;     ///< of the boxes, when the last act had ended
    std::vector<GridCell> m_cells;    ///< the grids' current ones, when the last act had ended
    QPointer<QWidget> m_focus;        ///< in the window, when the last act had ended
    std::vector<ChangedGrid> m_made;  ///< since then
    QString m_name;                   ///< of the act, where it has one of its own
    TypingGo m_go;
    bool m_isEndDue = false;
};

}  // namespace penwright
