#include "help/window/HelpWindow.h"

#include <algorithm>
#include <map>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include "help/window/HelpBrowser.h"
#include "help/window/HelpColours.h"
#include "help/window/HelpContents.h"
#include "help/window/WebQuestion.h"

namespace penwright {
namespace {

constexpr QSize kPreferredSize(1060, 740);
constexpr int kSideWidth = 290;
constexpr int kGap = 10;
constexpr int kMostFound = 200;

/// Shows which pane has the focus; the toolkit's frames look the same with it and without.
constexpr const char *kFrames =
    "QTreeWidget, QListWidget, QTextBrowser { border: 1px solid %1; }"
    "QTreeWidget:focus, QListWidget:focus, QTextBrowser:focus"
    "{ border: 1px solid palette(highlight); }";

/// Lines that are told apart at arm's length.
class RoomyLines : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 8);
    }
};

QLabel *makeLabel(const QString &text, QWidget *buddy)
{
    auto *label = new QLabel(text);
    label->setBuddy(buddy);
    buddy->setAccessibleName(text);
    return label;
}

/// Texts in the order of the contents tree; what does not stand there comes last.
std::vector<HelpText> inOrderOf(const std::vector<HelpEntry> &contents, std::vector<HelpText> texts)
{
    std::map<std::string, std::size_t> places;
    for (const HelpEntry &entry : contents)
        if (entry.place)
            places.insert({entry.place->topic, places.size()});
    const auto placeOf = [&](const HelpText &text) {
        const auto found = places.find(text.topic);
        return found == places.end() ? places.size() : found->second;
    };
    std::stable_sort(texts.begin(), texts.end(),
                     [&](const HelpText &left, const HelpText &right) { return placeOf(left) < placeOf(right); });
    return texts;
}

QString countText(std::size_t count)
{
    if (count == 0)
        return "No page holds all of these words.";
    const QString text = count == 1 ? "1 page found" : QString::number(count) + " pages found";
    return count <= std::size_t{kMostFound} ? text : text + "; these are the first " + QString::number(kMostFound);
}

QVBoxLayout *makeColumn(QWidget *widget)
{
    auto *column = new QVBoxLayout(widget);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    return column;
}

}  // namespace

HelpWindow::HelpWindow()
{
    setObjectName("frmHelp");
    setAttribute(Qt::WA_QuitOnClose, false);
    makeLayout();
    followPalette();
    connectAll();
    resize(kPreferredSize.boundedTo(screen()->availableSize() * 9 / 10));
}

HelpWindow::~HelpWindow() = default;

void HelpWindow::makeLayout()
{
    auto *panes = new QSplitter;
    panes->addWidget(makeSide());
    m_webQuestion = new WebQuestion;
    m_wbrTopic = new HelpBrowser;
    m_wbrTopic->setObjectName("wbrTopic");
    m_wbrTopic->setAccessibleName("Page");
    auto *page = new QWidget;
    auto *column = makeColumn(page);
    column->addWidget(m_webQuestion);
    column->addWidget(m_wbrTopic, 1);
    panes->addWidget(page);
    panes->setStretchFactor(1, 1);
    panes->setChildrenCollapsible(false);
    panes->setHandleWidth(kGap);
    panes->setSizes({kSideWidth, kPreferredSize.width() - kSideWidth});

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(kGap);
    layout->addWidget(makeBar());
    layout->addWidget(panes, 1);
}

QWidget *HelpWindow::makeBar()
{
    auto *bar = new QWidget;
    auto *row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    m_cmdBack = makeButton("cmdBack", "Back", "Alt+Left");
    m_cmdForward = makeButton("cmdForward", "Forward", "Alt+Right");
    m_cmdHome = makeButton("cmdHome", "Home", "Alt+Home");
    for (QPushButton *button : {m_cmdBack, m_cmdForward, m_cmdHome})
        row->addWidget(button);
    row->addStretch();
    m_txtSearch = new QLineEdit;
    m_txtSearch->setObjectName("txtSearch");
    m_txtSearch->setClearButtonEnabled(true);
    m_txtSearch->setMinimumWidth(220);
    m_txtSearch->setToolTip("Words that a page must hold (Ctrl+F). F3 goes to the next place where one stands");
    row->addWidget(makeLabel("Search", m_txtSearch));
    row->addWidget(m_txtSearch);
    return bar;
}

QWidget *HelpWindow::makeSide()
{
    m_tvwContents = new HelpContents;
    m_tvwContents->setObjectName("tvwContents");
    m_tvwContents->setItemDelegate(new RoomyLines(m_tvwContents));
    auto *contents = new QWidget;
    auto *column = makeColumn(contents);
    column->addWidget(makeLabel("Contents", m_tvwContents));
    column->addWidget(m_tvwContents, 1);

    auto *side = new QSplitter(Qt::Vertical);
    side->addWidget(contents);
    side->addWidget(makeFoundList());
    side->setChildrenCollapsible(false);
    side->setHandleWidth(kGap);
    return side;
}

QWidget *HelpWindow::makeFoundList()
{
    m_lstFound = new QListWidget;
    m_lstFound->setObjectName("lstFound");
    m_lstFound->setItemDelegate(new RoomyLines(m_lstFound));
    m_lblFound = makeLabel("Found", m_lstFound);
    m_lblFound->setObjectName("lblFound");
    m_lblFound->setWordWrap(true);
    m_lblFound->setTextFormat(Qt::PlainText);
    m_found = new QWidget;
    auto *column = makeColumn(m_found);
    column->addWidget(m_lblFound);
    column->addWidget(m_lstFound, 1);
    m_found->hide();
    return m_found;
}

QPushButton *HelpWindow::makeButton(const char *name, const QString &text, const QString &key)
{
    auto *button = new QPushButton(text);
    button->setObjectName(name);
    button->setAutoDefault(true);  // so that Enter presses the button that has the focus
    button->setToolTip(text + " (" + key + ")");
    addKey(QKeySequence(key), [button] { button->click(); });
    return button;
}

void HelpWindow::addKey(const QKeySequence &key, const std::function<void()> &action)
{
    connect(new QShortcut(key, this), &QShortcut::activated, this, action);
}

void HelpWindow::connectAll()
{
    connect(m_cmdBack, &QPushButton::clicked, m_wbrTopic, &QTextBrowser::backward);
    connect(m_cmdForward, &QPushButton::clicked, m_wbrTopic, &QTextBrowser::forward);
    connect(m_cmdHome, &QPushButton::clicked, this, &HelpWindow::goHome);
    connect(m_wbrTopic, &QTextBrowser::backwardAvailable, m_cmdBack, &QPushButton::setEnabled);
    connect(m_wbrTopic, &QTextBrowser::forwardAvailable, m_cmdForward, &QPushButton::setEnabled);
    connect(m_wbrTopic, &HelpBrowser::placeChanged, this, &HelpWindow::onPageChanged);
    connect(m_wbrTopic, &HelpBrowser::webLinkClicked, m_webQuestion, &WebQuestion::ask);
    connect(m_webQuestion, &WebQuestion::answered, m_wbrTopic, qOverload<>(&QWidget::setFocus));
    connect(m_tvwContents, &HelpContents::placeAsked, m_wbrTopic, &HelpBrowser::showPlace);
    connect(m_txtSearch, &QLineEdit::returnPressed, this, &HelpWindow::search);
    connect(m_lstFound, &QListWidget::currentItemChanged, this, &HelpWindow::showFound);
    connect(m_lstFound, &QListWidget::itemClicked, this, &HelpWindow::showFound);
    connect(m_lstFound, &QListWidget::itemActivated, m_wbrTopic, [this] { m_wbrTopic->setFocus(); });

    const auto goToSearch = [this] {
        m_txtSearch->setFocus(Qt::ShortcutFocusReason);
        m_txtSearch->selectAll();
    };
    addKey(QKeySequence("Ctrl+F"), goToSearch);
    addKey(QKeySequence("F3"), [this, goToSearch] {
        if (!m_wbrTopic->showNextMark())
            goToSearch();
    });
    addKey(QKeySequence("F6"), [this] { focusNextPane(); });
    for (const char *key : {"Ctrl++", "Ctrl+="})
        addKey(QKeySequence(key), [this] { m_wbrTopic->zoomBy(1); });
    addKey(QKeySequence("Ctrl+-"), [this] { m_wbrTopic->zoomBy(-1); });
}

void HelpWindow::setFile(std::unique_ptr<HelpFile> file)
{
    m_found->hide();
    m_lstFound->clear();
    m_txtSearch->clear();
    m_search.reset();
    m_words.clear();
    m_wbrTopic->setFile(file.get());
    m_file = std::move(file);
    m_tvwContents->setEntries(m_file->contents());
    setWindowTitle(QString::fromStdString(m_file->title()));
}

void HelpWindow::showPlace(const HelpPlace &place)
{
    const bool wasHidden = !isVisible();
    m_words.clear();
    m_wbrTopic->showPlace(place);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    if (wasHidden)
        m_wbrTopic->setFocus();
}

bool HelpWindow::event(QEvent *event)
{
    const bool isDone = QWidget::event(event);
    if (event->type() == QEvent::ApplicationPaletteChange)
        followPalette();
    return isDone;
}

void HelpWindow::followPalette()
{
    const QString frames = QString(kFrames).arg(paneLine(QApplication::palette()).name());
    if (frames != styleSheet())
        setStyleSheet(frames);
    m_wbrTopic->followPalette();
}

void HelpWindow::onPageChanged()
{
    m_webQuestion->hide();
    m_tvwContents->setPlace(m_wbrTopic->place());
    m_wbrTopic->markWords(m_words);
}

void HelpWindow::goHome()
{
    m_words.clear();
    if (m_file)
        m_wbrTopic->showPlace(m_file->home());
}

void HelpWindow::focusNextPane()
{
    const QList<QWidget *> panes{m_tvwContents, m_wbrTopic, m_txtSearch, m_lstFound};
    const auto current = panes.indexOf(focusWidget());
    const QWidget *last = panes.back();
    const auto next = (current + 1) % (last->isVisible() ? panes.size() : panes.size() - 1);
    panes[next]->setFocus(Qt::ShortcutFocusReason);
}

const HelpSearch &HelpWindow::searchOfFile()
{
    if (!m_search)
        m_search.emplace(inOrderOf(m_file->contents(), m_file->texts()));
    return *m_search;
}

void HelpWindow::search()
{
    if (!m_file)
        return;
    m_words = wordsOf(m_txtSearch->text());
    const std::vector<FoundPage> found = searchOfFile().pagesWith(m_words);
    const QSignalBlocker quiet(m_lstFound);
    m_lstFound->clear();
    for (const FoundPage &page : found) {
        if (m_lstFound->count() == kMostFound)
            break;
        auto *item = new QListWidgetItem(page.title, m_lstFound);
        item->setData(Qt::UserRole, QString::fromStdString(page.topic));
    }
    m_lblFound->setText(countText(found.size()));
    m_lstFound->setVisible(!found.empty());
    m_found->setVisible(!m_words.isEmpty());
    if (found.empty())
        return m_wbrTopic->markWords({});
    m_lstFound->setCurrentRow(0);
    showFound(m_lstFound->item(0));
    m_lstFound->setFocus();
}

void HelpWindow::showFound(const QListWidgetItem *item)
{
    if (!item)
        return;
    m_words = wordsOf(m_txtSearch->text());
    m_wbrTopic->showPlace({item->data(Qt::UserRole).toString().toStdString(), {}});
    m_wbrTopic->markWords(m_words);
}

void HelpWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape)
        return QWidget::keyPressEvent(event);
    if (m_webQuestion->isVisible())
        m_webQuestion->drop();
    else
        close();
}

}  // namespace penwright
