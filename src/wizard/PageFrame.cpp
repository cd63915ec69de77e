#include "wizard/PageFrame.h"

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>
#include <utility>

#include "controls/EnterKey.h"
#include "controls/FieldFocus.h"
#include "controls/InView.h"
#include "controls/QuietLabel.h"
#include "controls/ScreenReader.h"
#include "controls/SeparatorLine.h"
#include "grid/GridView.h"
#include "platform/qt/QtText.h"
#include "wizard/GivenUpTexts.h"
#include "wizard/HandlerGuard.h"
#include "wizard/PageSteps.h"
#include "wizard/StepKeys.h"
#include "wizard/WarningDialog.h"

namespace penwright {
namespace {

const PageRow &rowOf(int index)
{
    return kPages.at(static_cast<std::size_t>(index));
}

QLabel *makeHeading(const QString &text)
{
    auto *heading = new QLabel(text);
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * 1.4);
    font.setWeight(QFont::DemiBold);
    heading->setFont(font);
    heading->setWordWrap(true);
    return heading;
}

QLabel *makeNote(const QString &name)
{
    auto *note = new QuietLabel;
    note->setObjectName(name);
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    note->hide();
    return note;
}

/// Scrolls a form that has more than there is room for.
QScrollArea *makeScrollArea(QWidget *form)
{
    constexpr int kLeastHeight = 120;  // below that the whole page scrolls
    auto *area = new QScrollArea;
    area->setWidget(form);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setMinimumHeight(kLeastHeight);
    // Around texts that wrap, the whole page would ask for the height that the form would like to have.
    area->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    area->viewport()->setAutoFillBackground(false);
    form->setAutoFillBackground(false);
    return area;
}

}  // namespace

PageFrame::PageFrame(int index, const PageContext &context) : m_index(index), m_context(context)
{
    setScreenReaderRole(*this, QAccessible::Grouping);
    setObjectName("nfra" + QString::number(index));
    setAccessibleName(caption());
    m_formArea = new QWidget;
    m_note = makeNote("note" + QString::number(index));
    m_buttons = new QHBoxLayout;
    m_buttons->setSpacing(8);
    m_buttons->addStretch();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 22, 28, 20);
    layout->setSpacing(14);
    layout->addWidget(makeHeading(caption()));
    layout->addWidget(new SeparatorLine);
    m_scroll = makeScrollArea(m_formArea);
    layout->addWidget(m_scroll, 1);
    layout->addWidget(m_note);
    layout->addWidget(new SeparatorLine);
    layout->addLayout(m_buttons);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { noteField(now); });
}

PageFrame::~PageFrame()
{
    disconnect(qApp, nullptr, this, nullptr);  // the focus leaves its fields once more while they end
}

QString PageFrame::caption() const
{
    return toQString(rowOf(m_index).caption);
}

void PageFrame::scrollToTop()
{
    for (QScrollBar *bar : {m_scroll->horizontalScrollBar(), m_scroll->verticalScrollBar()})
        bar->setValue(0);
}

void PageFrame::showNote(const QString &text)
{
    m_note->setText(text);
    m_note->setVisible(!text.isEmpty());
    describe(*this, text);
}

QString PageFrame::note() const
{
    return m_note->text();
}

void PageFrame::focusFirstField()
{
    QWidget *widget = m_formArea->nextInFocusChain();
    while (widget != m_formArea && !(m_formArea->isAncestorOf(widget) && isTabStop(*widget, *this)))
        widget = widget->nextInFocusChain();
    if (widget == m_formArea)
        widget = m_next;
    goToField(*widget);
}

void PageFrame::focusLastField()
{
    QWidget *field = fieldOnReturn(m_lastField);
    if (field && isTabStop(*field, *this))
        goToField(*field);
    else
        focusFirstField();
}

void PageFrame::goToField(QWidget &field)
{
    focusField(field);
    bringIntoView(field);
}

void PageFrame::noteField(QWidget *focus)
{
    if (!focus || !m_formArea->isAncestorOf(focus))
        return;
    // The editor of a cell stands for its grid.
    for (QWidget *widget = focus; widget != m_formArea; widget = widget->parentWidget())
        if (widget->focusPolicy() & Qt::TabFocus)
            m_lastField = widget;
}

void PageFrame::addButtons(const Handler &next, const Handler &back)
{
    const PageRow &row = rowOf(m_index);
    const QString number = QString::number(row.number);
    addButton(toQString(row.cancelButton), "Cancel", "Escape", [this] { navigator().ConfirmCancel(); });
    addButton("cmdHelp" + number, "Help", "F1", [this, id = row.helpId] { navigator().ShowHelp(id); });
    m_buttons->addSpacing(16);
    m_next = addButton("cmdNext" + number, "Next >", "Alt+N", next ? [this, next] { pressNext(next); } : Handler());
    QPushButton *backButton = addButton("cmdBack" + number, "< Back", "Alt+B", back);
    // Captions carry no "&". A button's own shortcut would hold its click back while it shows itself pressed.
    connect(new QShortcut(QKeySequence("Alt+N"), this), &QShortcut::activated, m_next, &QPushButton::click);
    connect(new QShortcut(QKeySequence("Alt+B"), this), &QShortcut::activated, backButton, &QPushButton::click);
    keepEnterFromFields();
    m_fields = PageFields(*m_formArea);
    m_steps = new PageSteps(
        *this, m_fields,
        [this] {
            followValue();
            emit changed();
        },
        [this] { return navigator().isBusy(); });
    new StepKeys(*this, m_fields, *m_steps, *new GivenUpTexts(*this, m_fields, *m_steps));
    m_nextHandler = next;
    watchFields();
}

void PageFrame::watchFields()
{
    for (QWidget *box : m_fields.boxes()) {
        if (auto *line = qobject_cast<QLineEdit *>(box))
            connect(line, &QLineEdit::textChanged, this, &PageFrame::changed);
        if (auto *list = qobject_cast<QComboBox *>(box)) {
            connect(list, &QComboBox::currentIndexChanged, this, &PageFrame::changed);
            connect(list, &QComboBox::editTextChanged, this, &PageFrame::changed);
        }
        if (auto *button = qobject_cast<QAbstractButton *>(box))
            connect(button, &QAbstractButton::toggled, this, &PageFrame::changed);
    }
    for (GridView *grid : m_fields.grids()) {
        connect(grid, &GridView::cellWritten, this, &PageFrame::changed);
        connect(grid, &GridView::valuesReplaced, this, &PageFrame::changed);
        connect(grid, &GridView::rebuilt, this, &PageFrame::changed);
        connect(grid, &GridView::halfTypedChanged, this, &PageFrame::changed);
    }
}

bool PageFrame::showValue(const PageText &value, const QString &step)
{
    auto changes = m_fields.changes(value);
    if (!changes)
        return false;
    m_steps->beginAct(step);
    for (QWidget *box : m_fields.boxes())
        if (const auto text = value.find(box->objectName().toStdString()); text != value.end())
            PageFields::put(*box, toQString(text->second));
    for (PageFields::Change &change : *changes)
        change.grid->apply(std::move(change.edit));
    followValue();
    m_steps->endAct();
    emit changed();
    return true;
}

void PageFrame::keepEnterFromFields()
{
    for (QWidget *field : m_formArea->findChildren<QWidget *>()) {
        const auto *button = qobject_cast<QPushButton *>(field);
        const bool isPressable = qobject_cast<QAbstractButton *>(field) || qobject_cast<QComboBox *>(field);
        if (isPressable && !(button && button->autoDefault()))
            field->installEventFilter(this);
    }
}

QPushButton *PageFrame::addButton(const QString &name, const QString &text, const QString &key, const Handler &handler)
{
    auto *button = new QPushButton(text);
    button->setObjectName(name);
    button->setAccessibleDescription(key);
    button->setToolTip(key);
    button->setAutoDefault(true);  // so that Enter presses the button that has the focus
    button->setMinimumWidth(92);
    m_buttons->addWidget(button);
    if (handler)
        onClick(button, handler);
    else
        button->setEnabled(false);
    return button;
}

void PageFrame::pressNext(const Handler &next)
{
    if (!guardHandler(dialogs(), caption().toStdString(), next))
        goToFault(dlgWarn().list().firstFault());
}

bool PageFrame::leaveByNext()
{
    dlgWarn().setQuiet(true);
    try {
        m_nextHandler();
    } catch (const std::exception &) {  // what it would say, the press of a key will say again
        goToFault(dlgWarn().list().firstFault());
    }
    dlgWarn().setQuiet(false);
    return isHidden();
}

void PageFrame::addTopLine(QWidget &line)
{
    auto *layout = static_cast<QVBoxLayout *>(this->layout());
    layout->insertWidget(layout->indexOf(m_scroll), &line);
    line.lower();  // the first of the page's parts for a screen reader too
    for (auto *button : line.findChildren<QPushButton *>())
        button->installEventFilter(this);
}

void PageFrame::showWarnings()
{
    const std::optional<FaultPlace> place = dlgWarn().showModal();
    if (isVisible())  // the host may have had another page shown meanwhile
        goToFault(place);
}

void PageFrame::goToFault(const std::optional<FaultPlace> &place)
{
    if (place)
        focusFault(*place);
    if (QWidget *focus = window()->focusWidget(); focus && isAncestorOf(focus))
        bringIntoView(*focus);
}

void PageFrame::goTo(const FaultPlace &place)
{
    goToFault(place);
}

void PageFrame::focusFault(const FaultPlace &) {}

std::optional<FaultPlace> PageFrame::placeOf(const RecordPlace &) const
{
    return std::nullopt;
}

void PageFrame::onClick(QAbstractButton *button, const Handler &handler)
{
    connect(button, &QAbstractButton::clicked, this, [this, handler] { run(handler); });
}

void PageFrame::run(const Handler &handler)
{
    if (!navigator().isBusy())
        guardHandler(dialogs(), caption().toStdString(), handler);
}

bool PageFrame::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !isEnter(*static_cast<QKeyEvent *>(event)))
        return QFrame::eventFilter(watched, event);
    m_next->click();
    return true;
}

void PageFrame::keyPressEvent(QKeyEvent *event)
{
    if (isEnter(*event))
        m_next->click();
    else
        QFrame::keyPressEvent(event);
}

}  // namespace penwright
