#include "wizard/DraftLine.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>

#include "controls/QuietLabel.h"
#include "controls/ScreenReader.h"

namespace penwright {

DraftLine::DraftLine()
{
    setObjectName("draftLine");
    setScreenReaderRole(*this, QAccessible::Grouping);
    m_offer = new QuietLabel;
    m_offer->setObjectName("draftOffer");
    m_offer->setTextFormat(Qt::PlainText);
    m_offer->setWordWrap(true);
    m_takeOver = makeButton("draftTakeOver", "Take Over", &DraftLine::takeOverPressed);
    m_discard = makeButton("draftDiscard", "Discard", &DraftLine::discardPressed);
    m_more = makeButton("draftMore", "More...", &DraftLine::morePressed);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(m_offer, 1);
    for (QPushButton *button : {m_takeOver, m_discard, m_more})
        layout->addWidget(button);
    // Each keeps its place, so that none comes under a pointer that was over another one.
    for (QPushButton *button : {m_discard, m_more}) {
        QSizePolicy policy = button->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        button->setSizePolicy(policy);
    }
    hide();
}

QPushButton *DraftLine::makeButton(const char *name, const QString &text, void (DraftLine::*pressed)())
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, pressed);
    return button;
}

void DraftLine::offer(const QString &text, bool canDiscard, bool hasMore)
{
    m_offer->setText(text);
    setAccessibleName(text);
    for (QPushButton *button : {m_takeOver, m_discard})
        describe(*button, text);
    m_discard->setVisible(canDiscard);
    m_more->setVisible(hasMore);
    show();
}

void DraftLine::openList(const QStringList &offers)
{
    auto *list = new QMenu(this);
    list->setObjectName("draftList");
    list->setAttribute(Qt::WA_DeleteOnClose);
    for (int offer = 0; offer < offers.size(); ++offer) {
        QString shown = list->fontMetrics().elidedText(offers[offer], Qt::ElideMiddle, width() / 2);
        shown.replace('&', "&&");  // what was typed is no mark for a key
        connect(list->addAction(shown), &QAction::triggered, this, [this, offer] { emit chosen(offer); });
    }
    // Its right edge is the button's, which is the page's.
    list->popup(m_more->mapToGlobal(QPoint(m_more->width() - list->sizeHint().width(), m_more->height())));
}

}  // namespace penwright
