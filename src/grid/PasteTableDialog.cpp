#include "grid/PasteTableDialog.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

#include "controls/ClipboardText.h"
#include "controls/InView.h"
#include "controls/ScreenReader.h"
#include "core/FileErrors.h"
#include "core/NumberText.h"
#include "core/TextBytes.h"
#include "grid/TableChoices.h"
#include "grid/TablePreview.h"
#include "grid/TableWords.h"
#include "platform/Dialogs.h"
#include "platform/qt/Closing.h"
#include "platform/qt/QtText.h"

namespace penwright {
namespace {

constexpr int kProgressSteps = 1000;
constexpr double kMostOfScreen = 0.95;

QLabel *makeWords(const char *name)
{
    auto *label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

/// A line of widgets at its end, behind one that has all the room, or room behind it.
QLayout *makeLine(QWidget *first, std::initializer_list<QWidget *> atEnd)
{
    auto *line = new QHBoxLayout;
    line->setSpacing(8);
    line->addWidget(first, 1, qobject_cast<QPushButton *>(first) ? Qt::AlignLeft : Qt::Alignment());
    for (QWidget *widget : atEnd)
        line->addWidget(widget);
    return line;
}

/// On a small screen what is in it scrolls, so that the buttons stay in sight.
QScrollArea *makeScrolled(QWidget *content)
{
    auto *area = new QScrollArea;
    area->setWidget(content);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    return area;
}

/// The choices scroll downwards only.
QWidget *makeScrolledDown(QWidget *choices)
{
    QScrollArea *area = makeScrolled(choices);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFixedWidth(choices->sizeHint().width() + area->verticalScrollBar()->sizeHint().width());
    return area;
}

}  // namespace

PasteTableDialog::PasteTableDialog(TablePurpose purpose, Dialogs &dialogs, TextFiles &files, const Closing &closing,
                                   QWidget *parent)
    : QDialog(parent),
      m_purpose(std::move(purpose)),
      m_dialogs(dialogs),
      m_files(files),
      m_closing(closing),
      m_run(this)
{
    setObjectName("pasteTableDialog");
    setWindowTitle("Paste Table");
    setWindowModality(Qt::WindowModal);  // the help window stays usable beside it
    setSizeGripEnabled(true);
    m_preview = new TablePreview;
    m_preview->setObjectName("tablePreview");
    m_preview->setAccessibleName("Preview");
    m_choices = new TableChoices;
    m_words = makeWords("tableWords");
    m_problem = makeWords("tableProblem");
    m_progress = new QProgressBar;
    m_progress->setObjectName("tableProgress");
    m_progress->setAccessibleName("Reading");
    m_progress->setRange(0, kProgressSteps);
    makeLayout();
    connect(this, &QDialog::finished, &m_run, &TableRun::stop);
    connect(m_choices, &TableChoices::changed, this, &PasteTableDialog::readAgain);
    connect(&m_run, &TableRun::tableRead, this, &PasteTableDialog::showWhole);
    connect(&m_run, &TableRun::fileRead, this, &PasteTableDialog::takeFile);
    connect(&m_run, &TableRun::progressed, this, [this](double part) {
        m_progress->show();
        m_progress->setValue(static_cast<int>(part * kProgressSteps));
    });
}

/// All but the words and the buttons, which are in sight however small the dialog is.
QWidget *PasteTableDialog::makeBody()
{
    m_preview->setMinimumSize(120, 80);
    auto *middle = new QHBoxLayout;
    middle->setSpacing(16);
    middle->addWidget(m_preview, 1);
    middle->addWidget(makeScrolledDown(m_choices));
    auto *body = new QWidget;
    auto *layout = new QVBoxLayout(body);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    layout->addLayout(makeSourceLine());
    layout->addLayout(middle, 1);
    return makeScrolled(body);
}

void PasteTableDialog::makeLayout()
{
    auto *words = new QVBoxLayout;
    words->setSpacing(6);
    words->addWidget(m_words);
    words->addWidget(m_problem);
    words->addWidget(m_progress);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(12);
    layout->addWidget(makeBody(), 1);
    layout->addLayout(words);
    layout->addLayout(makeButtons());
    setMinimumSize(320, 200);
    resize(QSize(780, 520).boundedTo(screen()->availableSize() * kMostOfScreen));
    followTheEye();
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (now && isAncestorOf(now))
            bringIntoView(*now);
    });
    m_ok->setDefault(true);  // not before it is in the dialog, which would choose another one
}

void PasteTableDialog::followTheEye()
{
    QWidget *last = nullptr;
    for (const char *name : {"takeClipboard", "chooseFile", "tablePreview", "tableSeparator", "tableDecimal",
                             "tableThousands", "tableSkip", "tableAngleRow", "tableAngleColumn", "tableDirection",
                             "tableUnit", "helpButton", "cancelButton", "okButton"}) {
        auto *next = findChild<QWidget *>(name);
        if (last)
            setTabOrder(last, next);
        last = next;
    }
}

QPushButton *PasteTableDialog::addButton(const char *name, const QString &text, void (PasteTableDialog::*act)())
{
    auto *button = new QPushButton(text);
    button->setObjectName(name);
    button->setMinimumWidth(std::max(92, button->sizeHint().width() + 24));
    connect(button, &QPushButton::clicked, this, act);
    return button;
}

QLayout *PasteTableDialog::makeSourceLine()
{
    m_source = makeWords("tableSource");
    return makeLine(m_source, {addButton("takeClipboard", "From Clipboard", &PasteTableDialog::takeClipboard),
                               addButton("chooseFile", "From File...", &PasteTableDialog::chooseFile)});
}

QLayout *PasteTableDialog::makeButtons()
{
    m_ok = addButton("okButton", "OK", &QDialog::accept);
    return makeLine(addButton("helpButton", "Help", &PasteTableDialog::showHelp),
                    {addButton("cancelButton", "Cancel", &QDialog::reject), m_ok});
}

bool PasteTableDialog::ask()
{
    if (m_closing.isClosing())
        return false;
    takeClipboard();
    m_preview->setFocus();
    return exec() == Accepted && !m_closing.isClosing() && m_table && std::holds_alternative<TableContent>(*m_table);
}

double PasteTableDialog::factor() const
{
    return m_purpose.unit.factor(m_choices->reading().unit);
}

void PasteTableDialog::takeClipboard()
{
    try {
        auto text = std::make_shared<const std::string>(readClipboardText());
        if (text->empty())
            return takeNothing("The clipboard holds no text. Copy a table, or take it from a file.");
        takeText(text, "From the clipboard");
    } catch (const std::exception &error) {
        takeNothing(error.what());
    }
}

void PasteTableDialog::chooseFile()
{
    const auto path = m_dialogs.chooseOpenName(
        {.title = "Paste Table From File", .filter = "Tables as text (*.csv, *.tsv, *.txt)|*.csv;*.tsv;*.txt"});
    if (!path || m_closing.isClosing())
        return;
    m_path = *path;
    takeNothing("The file is being read.");
    m_run.readFile(m_files, m_path);
}

void PasteTableDialog::showHelp()
{
    m_purpose.showHelp();
}

void PasteTableDialog::takeFile(const SharedText &text, int error)
{
    const QString name = toQString(m_path).section('/', -1);
    if (error != 0)
        takeNothing(toQString(readingErrorText(m_path, error)));
    else if (text->empty())
        takeNothing(toQString(shownWord(name.toStdString()) + " is empty."));
    else
        takeText(text, "From " + name);
}

void PasteTableDialog::takeText(const SharedText &text, const QString &source)
{
    m_text = text;
    m_source->setText(source);
    m_choices->setEnabled(true);
    TableReading reading = guessTable(*text);
    if (m_purpose.unit.isInMultiplier(reading.unit))
        reading.unit = ValueUnit::Candela;
    m_choices->setReading(reading);
    m_preview->setFocus();
    readAgain();
}

/// There is no text, and why.
void PasteTableDialog::takeNothing(const QString &problem)
{
    m_run.stop();
    m_text = nullptr;
    m_table = nullptr;
    m_source->setText(QString());
    m_choices->setEnabled(false);
    m_preview->showLines({}, 0, 0);
    m_progress->hide();
    sayOfUnit();
    say({}, problem.toStdString(), false);
}

void PasteTableDialog::readAgain()
{
    sayOfUnit();
    m_progress->hide();
    m_progress->setValue(0);
    if (firstPart(*m_text).size() < m_text->size())
        showFirstPart();
    m_run.readTable(m_text, m_choices->reading());
}

/// What is seen until the whole is read.
void PasteTableDialog::showFirstPart()
{
    const std::string_view part = firstPart(*m_text);
    const TableReading reading = m_choices->reading();
    auto table = readTable(part, reading);
    m_table = nullptr;
    if (auto *content = std::get_if<TableContent>(&table))
        m_preview->showTable(std::make_shared<const TableContent>(std::move(*content)), factor());
    else
        m_preview->showLines(cutLines(part, reading, 0), 0, 0);
    say(readingWords(reading), "The whole text is being read.", false);
}

void PasteTableDialog::showWhole(const SharedTable &table)
{
    m_progress->hide();
    m_table = table;
    if (const auto *content = std::get_if<TableContent>(m_table.get()))
        showTable({m_table, content});
    else
        showFault(std::get<TableFault>(*m_table));
}

void PasteTableDialog::showTable(const std::shared_ptr<const TableContent> &table)
{
    const TableReading reading = m_choices->reading();
    const std::string words = readingWords(reading) + " " + contentWords(*table, reading);
    m_preview->showTable(table, factor());
    if (reading.unit == ValueUnit::PerKilolumen && !m_purpose.unit.isKnown())
        return say(words, m_purpose.unit.whyNone, false);
    if (reading.unit == ValueUnit::Other)
        return say(words, m_purpose.unit.words(reading.unit), false);
    const TableVerdict verdict = m_purpose.judge(*table, factor());
    say(words, verdict.text, verdict.isTaken);
}

void PasteTableDialog::showFault(const TableFault &fault)
{
    const TableReading reading = m_choices->reading();
    m_preview->showLines(cutLines(*m_text, reading, fault.line), fault.line, fault.cell);
    const bool hasAngles = reading.isList || reading.hasAngleRow || reading.hasAngleColumn;
    say(readingWords(reading), hasAngles || m_purpose.need.empty() ? fault.text : fault.text + " " + m_purpose.need,
        false);
}

void PasteTableDialog::say(const std::string &words, const std::string &problem, bool isTaken)
{
    m_words->setText(toQString(words));
    m_words->setVisible(!words.empty());
    m_problem->setText(toQString(problem));
    m_problem->setVisible(!problem.empty());
    QFont font = m_words->font();
    font.setWeight(isTaken ? QFont::Normal : QFont::DemiBold);
    m_problem->setFont(font);
    m_ok->setEnabled(isTaken);
    describe(*m_preview, toQString(problem.empty() ? words : words.empty() ? problem : words + " " + problem));
}

void PasteTableDialog::sayOfUnit()
{
    m_choices->sayOfUnit(toQString(m_purpose.unit.words(m_choices->reading().unit)));
}

}  // namespace penwright
