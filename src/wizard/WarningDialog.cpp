#include "wizard/WarningDialog.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "controls/LongTextBox.h"
#include "controls/QuietLabel.h"
#include "controls/ScreenReader.h"
#include "platform/qt/Closing.h"

namespace penwright {
namespace {

/// The beginning of a list that may have a million lines.
QString spokenBeginning(const QString &lines)
{
    constexpr int kMostLines = 10;
    qsizetype end = lines.indexOf('\n');
    for (int line = 1; line < kMostLines && end >= 0; ++line)
        end = lines.indexOf('\n', end + 1);
    const bool isWhole = end < 0 || end + 1 == lines.size();
    return isWhole ? lines.trimmed() : lines.left(end) + "\nand more";
}

}  // namespace

WarningDialog::WarningDialog(const Closing &closing, QWidget *parent) : QDialog(parent), m_closing(closing)
{
    setObjectName("dlgWarn");
    setWindowTitle("Data incomplete!");
    setWindowModality(Qt::WindowModal);  // the help window stays usable beside it
    setSizeGripEnabled(true);
    resize(480, 320);

    m_text = new LongTextBox;
    m_text->setObjectName("Text1");
    m_text->setAccessibleName("What is missing or wrong");
    m_ok = new QPushButton("OK");
    m_ok->setObjectName("OKButton");
    m_ok->setDefault(true);
    m_ok->setMinimumWidth(92);
    connect(m_ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_text, &LongTextBox::lineChosen, this, [this](int line) {
        if (const auto place = m_list.placeOfLine(line))
            m_chosen = place;
        accept();
    });

    auto *hint = new QuietLabel;
    hint->setText("A double click on a line, or Enter, goes to its field.");
    hint->setWordWrap(true);
    describe(*m_text, hint->text());
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(16);
    buttons->addWidget(hint, 1);
    buttons->addWidget(m_ok);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(12);
    layout->addWidget(m_text);
    layout->addLayout(buttons);
}

std::optional<FaultPlace> WarningDialog::showModal()
{
    m_chosen = m_list.firstFault();
    if (m_isQuiet || m_closing.isClosing())
        return m_chosen;
    QString lines = QString::fromStdString(m_list.text());
    lines.remove('\r');
    describe(*this, spokenBeginning(lines));
    m_text->showLines(std::move(lines));
    m_ok->setFocus();
    exec();
    return m_chosen;
}

}  // namespace penwright
