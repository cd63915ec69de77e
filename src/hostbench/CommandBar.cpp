#include "hostbench/CommandBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace penwright {

namespace {

QString lacksForTool(const CommandBar::Situation &situation)
{
    if (situation.isClosing)
        return CommandBar::tr("The window is closing");
    if (!situation.isToolRunning)
        return CommandBar::tr("No tool is running to send commands to");
    return situation.isToolShown ? QString() : CommandBar::tr("Choose the tab of a tool to send it commands");
}

QString lacksForFile(const CommandBar::Situation &situation)
{
    const QString lacks = lacksForTool(situation);
    if (!lacks.isEmpty() || situation.isFileSelected)
        return lacks;
    return CommandBar::tr("Select a file that the tool is to be told of");
}

}  // namespace

CommandBar::CommandBar(QWidget *parent) : QWidget(parent)
{
    setObjectName("toolBar");
    setAttribute(Qt::WA_StyledBackground);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(16, 10, 16, 10);
    row->setSpacing(8);
    m_new = addButton(row, "newFile", tr("New Photometric File..."));
    m_new->setProperty("primary", true);
    m_files = addButton(row, "showFiles", tr("Files"));
    m_files->setCheckable(true);
    m_files->setToolTip(tr("Shows or hides the files"));
    makeHint(row);
    m_dataChanged = addButton(row, "sendDataChanged", tr("Send DATACHANGED"));
    m_deleteFile = addButton(row, "sendDeleteFile", tr("Send DELETEFILE"));
    m_close = addButton(row, "sendClose", tr("Send CLOSE"));
    connect(m_new, &QPushButton::clicked, this, &CommandBar::newFile);
    connect(m_files, &QPushButton::toggled, this, &CommandBar::filesShown);
    connect(m_dataChanged, &QPushButton::clicked, this, &CommandBar::sendDataChanged);
    connect(m_deleteFile, &QPushButton::clicked, this, &CommandBar::sendDeleteFile);
    connect(m_close, &QPushButton::clicked, this, &CommandBar::sendClose);
}

QPushButton *CommandBar::addButton(QHBoxLayout *row, const char *name, const QString &caption)
{
    auto *button = new QPushButton(caption);
    button->setObjectName(name);
    row->addWidget(button);
    return button;
}

void CommandBar::makeHint(QHBoxLayout *row)
{
    m_hint = new QLabel;
    m_hint->setObjectName("hint");
    m_hint->setProperty("quiet", true);
    m_hint->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_hint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->addWidget(m_hint, 1);
    row->addSpacing(4);
}

void CommandBar::enable(QPushButton *button, const QString &whatItDoes, const QString &whatLacks)
{
    button->setEnabled(whatLacks.isEmpty());
    button->setToolTip(whatLacks.isEmpty() ? whatItDoes : whatLacks);
    button->setAccessibleDescription(button->toolTip());
}

void CommandBar::follow(const Situation &situation)
{
    const QString forTool = lacksForTool(situation);
    const QString forFile = lacksForFile(situation);
    enable(m_new, tr("Starts the tool in a tab of its own"), situation.isClosing ? forTool : QString());
    enable(m_close, tr("Closes the tool shown"), forTool);
    enable(m_dataChanged, tr("Puts the selected file into the store of the tool shown and tells it"), forFile);
    enable(m_deleteFile, tr("Tells the tool shown that the selected file is gone"), forFile);
    m_hint->setText(situation.isNarrow ? QString() : forFile);
}

void CommandBar::setFilesShown(bool isShown)
{
    m_files->setChecked(isShown);
}

}  // namespace penwright
