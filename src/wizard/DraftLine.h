#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace penwright {

/// The one quiet line that offers a draft: what it is about, and buttons to take it over, to discard it, and to see
/// others. It is hidden until there is something to offer, takes no focus by itself, and none of its buttons is pressed
/// by Enter: a slip there would cost a draft.
class DraftLine : public QWidget {
    Q_OBJECT

public:
    DraftLine();

    /// Shows an offer. A last finished file cannot be discarded.
    void offer(const QString &text, bool canDiscard, bool hasMore);

    /// Opens a list of offers below the button for more, from which one is chosen.
    void openList(const QStringList &offers);

signals:
    void takeOverPressed();
    void discardPressed();
    void morePressed();
    void chosen(int offer);  ///< from the list, counted from 0

private:
    QPushButton *makeButton(const char *name, const QString &text, void (DraftLine::*pressed)());

    QLabel *m_offer;
    QPushButton *m_takeOver;
    QPushButton *m_discard;
    QPushButton *m_more;
};

}  // namespace penwright
