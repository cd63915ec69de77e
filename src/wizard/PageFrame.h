#pragma once

#include <QFrame>
#include <QPointer>

#include <functional>
#include <optional>
#include <string>

#include "core/ToolState.h"
#include "draft/PageValue.h"
#include "wizard/PageFields.h"
#include "wizard/PageTable.h"

class QAbstractButton;
class QLabel;
class QPushButton;
class QScrollArea;

namespace penwright {

class Dialogs;
class PageSteps;
class WarningDialog;
struct FaultPlace;
struct RecordPlace;

/// What a page asks of the wizard window.
class Navigator {
public:
    virtual ~Navigator() = default;

    /// Hides all frames and shows the frame of a row of the page table under its caption; any other index shows none
    /// and leaves the caption.
    virtual void ShowPage(int index) = 0;

    /// Asks whether to cancel; Yes unloads the window. A tool that is not embedded ends whatever the answer.
    virtual void ConfirmCancel() = 0;

    /// Opens the help file at a context id.
    virtual void ShowHelp(int contextId) = 0;

    /// Opens the help file at a page and a place in it, "page.html#anchor".
    virtual void showHelpAt(const std::string &link) = 0;

    /// Goes back to the page on which a place of the record is typed, with the focus on it; nowhere when none has it.
    virtual void goToPlace(const RecordPlace &place) = 0;

    /// Called after each re-size of an angle list; returns false and does nothing else.
    virtual bool ReDo() = 0;

    /// Whether a post waits, a dialog is open or the window unloads, so that a button pressed by other means than keys
    /// and clicks is refused.
    virtual bool isBusy() const = 0;
};

/// What every page works with. What it refers to outlives the page.
struct PageContext {
    ToolState &state;
    Dialogs &dialogs;
    Navigator &navigator;
    WarningDialog &dlgWarn;
};

/// One page of the wizard: its caption at the top, the space for its form, and the row of four buttons.
class PageFrame : public QFrame {
    Q_OBJECT

public:
    using Handler = std::function<void()>;

    PageFrame(int index, const PageContext &context);
    ~PageFrame() override;

    int index() const { return m_index; }
    QString caption() const;

    /// Runs once, when the wizard window loads; raises the errors of the store.
    virtual void load() {}

    /// Runs each time the wizard starts, before page 1 is shown.
    virtual void start() {}

    /// Whether `start` takes away something that stands on the page.
    virtual bool losesByStart() const { return false; }

    /// Runs each time before the page is shown; an error raised here leaves the page that is shown as it is.
    virtual void enter() {}

    /// Runs each time the page is come back to from the page of an index, or passed on the way back from there, before
    /// a page is shown.
    virtual void comeBackFrom(int) {}

    /// Runs when the host has put its own record into slot 1. Whether what the page holds did not fit it and was built
    /// anew.
    virtual bool followRecord() { return false; }

    /// The controls that hold what a user puts in.
    const PageFields &fields() const { return m_fields; }

    /// What stands on the page.
    PageValue value() const { return m_fields.value(); }

    /// What will stand on it once it is come back to from a later page.
    virtual PageValue valueOnReturn() const { return value(); }

    /// Puts texts that controls of a page held into those of this one; the others stay. False, and nothing is changed,
    /// when it names a control that the page does not have, or a text that cannot stand in its control.
    /// It is one step, of that name.
    bool showValue(const PageText &value, const QString &step);

    /// What has been done on the page, to be undone.
    PageSteps &steps() const { return *m_steps; }

    /// Where on the page a place of the record is typed; nothing when it is typed elsewhere.
    virtual std::optional<FaultPlace> placeOf(const RecordPlace &) const;

    /// Puts the focus on a place of the page, and brings it into view. A place that is not there leaves the focus.
    void goTo(const FaultPlace &place);

    /// What the file is about, as far as this page knows; "" for nothing.
    virtual std::string subject() const { return {}; }

    /// Does what Next does without a word: no box opens, and a fault leaves the page as it is, with the focus on it.
    /// Whether another page is shown now.
    bool leaveByNext();

    /// Puts a line above the form. Enter in it presses Next.
    void addTopLine(QWidget &line);

    /// Shows the form from its beginning, where it has more than there is room for.
    void scrollToTop();

    /// Shows one quiet line under the form, which screen readers are told of as well; an empty one takes it away.
    void showNote(const QString &text);

    /// The line that shows under the form, "" for none.
    QString note() const;

    /// Puts the focus on the first field of the form that takes it, on the Next button where there is none. A text in
    /// it is selected.
    void focusFirstField();

    /// Puts the focus on the field of the form that had it last, as one does who comes back; on the first one when that
    /// takes it no more. A text in it is selected.
    void focusLastField();

signals:
    /// What stands on the page may have changed.
    void changed();

    /// All that the page holds has been put there at once, whether it is shown or not: a table has been pasted.
    void filled();

protected:
    /// The widget that takes the page's form.
    QWidget *formArea() const { return m_formArea; }

    /// Adds the row of buttons, last of all so that the tab order ends with it. A button without a handler leads
    /// nowhere and is disabled.
    void addButtons(const Handler &next, const Handler &back);

    /// Has `handler` run at each click on a button, unless the wizard is busy; its errors are told under the caption.
    void onClick(QAbstractButton *button, const Handler &handler);

    /// Runs a handler that no button leads to, unless the wizard is busy; its errors are told under the caption.
    void run(const Handler &handler);

    /// Shows the list of warnings, then puts the focus on the field of the line chosen in it, else on the first faulty
    /// one.
    void showWarnings();

    /// The field to be given the focus when one comes back, `last` being the one that had it last, or none.
    virtual QWidget *fieldOnReturn(QWidget *last) const { return last; }

    /// Runs when what the page held once has been put into its controls: shows what follows from that.
    virtual void followValue() {}

    /// Puts the focus on a faulty field, where the page told the places of its checks.
    virtual void focusFault(const FaultPlace &place);

    WarningDialog &dlgWarn() const { return m_context.dlgWarn; }
    ToolState &state() const { return m_context.state; }
    Dialogs &dialogs() const { return m_context.dialogs; }
    Navigator &navigator() const { return m_context.navigator; }

    /// Enter presses Next wherever it has no use of its own, as it has in grids, open lists and on buttons that are
    /// `autoDefault`.
    void keyPressEvent(QKeyEvent *event) override;

    /// Keeps Enter from the fields of the form that some desktops let press it, and gives it to Next.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void noteField(QWidget *focus);
    void goToField(QWidget &field);
    void keepEnterFromFields();
    void watchFields();
    void pressNext(const Handler &next);
    void goToFault(const std::optional<FaultPlace> &place);
    QPushButton *addButton(const QString &name, const QString &text, const QString &key, const Handler &handler);

    int m_index;
    PageContext m_context;
    QWidget *m_formArea = nullptr;
    QScrollArea *m_scroll = nullptr;  ///< around the form: caption and buttons stay in sight
    QLabel *m_note = nullptr;
    class QHBoxLayout *m_buttons = nullptr;
    QPushButton *m_next = nullptr;
    Handler m_nextHandler;
    PageFields m_fields;
    PageSteps *m_steps = nullptr;
    QPointer<QWidget> m_lastField;  ///< of the form
};

}  // namespace penwright
