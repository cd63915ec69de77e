#pragma once

#include <QFrame>
#include <QString>

class QLabel;
class QPushButton;
class QUrl;

namespace penwright {

/// Asks within the help window whether to open a link of the web, with the buttons `cmdOpenWeb` and `cmdStay`. It is no
/// dialog: one would stand over the wizard and block it too.
class WebQuestion : public QFrame {
    Q_OBJECT

public:
    explicit WebQuestion(QWidget *parent = nullptr);

    /// Shows the question for a link, which opens in the desktop's own program once it is answered so.
    void ask(const QUrl &url);

    /// Takes the question away; the answer is no.
    void drop();

signals:
    void answered();

private:
    QLabel *m_text;
    QPushButton *m_cmdOpenWeb;
    QString m_link;
};

}  // namespace penwright
