#include "hostbench/LogPanel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

namespace penwright {

LogPanel::LogPanel(QWidget *parent) : QWidget(parent)
{
    m_fold = new QToolButton;
    m_fold->setObjectName("foldLog");
    m_fold->setText(tr("Link Log"));
    m_fold->setCheckable(true);
    m_fold->setAutoRaise(true);
    m_fold->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_fold->setToolTip(tr("Shows or hides the commands between host and tools"));
    m_newest = new QLabel;
    m_newest->setObjectName("newestLine");
    m_newest->setProperty("quiet", true);
    m_newest->setTextFormat(Qt::PlainText);
    m_newest->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_log = new LinkLog;

    auto *heading = new QHBoxLayout;
    heading->addWidget(m_fold, 0, Qt::AlignLeft);
    heading->addWidget(m_newest, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addLayout(heading);
    layout->addWidget(m_log, 1);
    connect(m_fold, &QToolButton::toggled, this, [this](bool isOpen) { setFolded(!isOpen); });
    setFolded(false);
}

void LogPanel::append(const QString &tool, ToolRun::Line line, const QString &text)
{
    m_log->append(tool, line, text);
    m_newest->setText(m_log->newestLine());
}

void LogPanel::setFolded(bool isFolded)
{
    m_fold->setChecked(!isFolded);
    m_fold->setArrowType(isFolded ? Qt::RightArrow : Qt::DownArrow);
    m_newest->setVisible(isFolded);
    m_log->setVisible(!isFolded);
    QTimer::singleShot(0, m_log, &QTreeWidget::scrollToBottom);  // once it has its height
    setMaximumHeight(isFolded ? m_fold->sizeHint().height() : QWIDGETSIZE_MAX);
    emit folded(isFolded);
}

}  // namespace penwright
