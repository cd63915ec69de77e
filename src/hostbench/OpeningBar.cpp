#include "hostbench/OpeningBar.h"

#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace penwright {

namespace {

constexpr int kSteps = 1000;

}  // namespace

OpeningBar::OpeningBar(QWidget *parent) : QWidget(parent)
{
    m_name = new QLabel;
    m_name->setTextFormat(Qt::PlainText);
    m_name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_progress = new QProgressBar;
    m_progress->setObjectName("openingProgress");
    m_progress->setRange(0, kSteps);
    auto *cancel = new QPushButton(tr("Cancel"));
    cancel->setObjectName("cancelOpening");
    cancel->setShortcut(Qt::Key_Escape);
    cancel->setToolTip(tr("Opens no more files; those that are read stay (Esc)"));
    connect(cancel, &QPushButton::clicked, this, &OpeningBar::cancelled);
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_name, 0, 0);
    layout->addWidget(m_progress, 1, 0);
    layout->addWidget(cancel, 0, 1, 2, 1);
    layout->setColumnStretch(0, 1);
    hide();
}

void OpeningBar::showPart(const QString &name, double part)
{
    const QString words = tr("Reading %1").arg(name);
    m_name->setText(m_name->fontMetrics().elidedText(words, Qt::ElideMiddle, m_name->width()));
    m_name->setToolTip(words);
    m_progress->setAccessibleName(words);
    m_progress->setValue(static_cast<int>(part * kSteps));
    show();
}

}  // namespace penwright
