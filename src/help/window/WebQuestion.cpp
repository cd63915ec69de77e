#include "help/window/WebQuestion.h"

#include <QDesktopServices>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QUrl>

namespace penwright {
namespace {

constexpr int kLongestLink = 200;  ///< characters shown

QString shortened(const QString &link)
{
    return link.size() <= kLongestLink ? link : link.left(kLongestLink) + QChar(0x2026);
}

}  // namespace

WebQuestion::WebQuestion(QWidget *parent) : QFrame(parent), m_text(new QLabel), m_cmdOpenWeb(new QPushButton("Open"))
{
    setObjectName("fraWeb");
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);
    m_text->setObjectName("lblWeb");
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_cmdOpenWeb->setObjectName("cmdOpenWeb");
    auto *stay = new QPushButton("Cancel");
    stay->setObjectName("cmdStay");
    for (QPushButton *button : {m_cmdOpenWeb, stay})
        button->setAutoDefault(true);  // so that Enter presses the button that has the focus

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 10, 16, 10);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_cmdOpenWeb);
    layout->addWidget(stay);
    hide();

    connect(stay, &QPushButton::clicked, this, &WebQuestion::drop);
    connect(m_cmdOpenWeb, &QPushButton::clicked, this, [this] {
        const QUrl url(m_link);
        drop();
        QDesktopServices::openUrl(url);
    });
}

void WebQuestion::ask(const QUrl &url)
{
    m_link = url.toString(QUrl::FullyEncoded);
    m_text->setText("This link leads out of the help. Open it?\n" + shortened(m_link));
    show();
    m_cmdOpenWeb->setFocus(Qt::OtherFocusReason);
}

void WebQuestion::drop()
{
    hide();
    emit answered();
}

}  // namespace penwright
