#include "wizard/WarningDialog.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/Closing.h"

namespace penwright {

WarningDialog::WarningDialog(const Closing &closing, QWidget *parent) : QDialog(parent), m_closing(closing)
{
    setObjectName("dlgWarn");
    setWindowTitle("Data incomplete!");
    setWindowModality(Qt::WindowModal);  // the help window stays usable beside it
    setSizeGripEnabled(true);
    resize(480, 320);

    m_text = new QPlainTextEdit;
    m_text->setObjectName("Text1");
    m_text->setAccessibleName("What is missing or wrong");
    m_text->setReadOnly(true);
    m_text->setTabChangesFocus(true);
    m_text->setUndoRedoEnabled(false);
    auto *ok = new QPushButton("OK");
    ok->setObjectName("OKButton");
    ok->setDefault(true);
    ok->setMinimumWidth(92);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(12);
    layout->addWidget(m_text);
    layout->addLayout(buttons);
    ok->setFocus();
}

void WarningDialog::showModal()
{
    if (m_closing.isClosing())
        return;
    m_text->setPlainText(QString::fromStdString(m_list.text()));
    exec();
}

}  // namespace penwright
