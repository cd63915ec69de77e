#include "pages/finish/FileReview.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <utility>

#include "controls/FigureList.h"
#include "controls/NumberedText.h"
#include "controls/QuietLabel.h"
#include "controls/RemarkList.h"
#include "controls/ScreenReader.h"
#include "core/IesText.h"
#include "platform/qt/QtText.h"
#include "platform/RunTimeError.h"
#include "plot/CurveKey.h"
#include "plot/MainPlanes.h"
#include "plot/PlotView.h"
#include "review/Figures.h"
#include "review/Photometry.h"
#include "review/Remarks.h"

namespace penwright {
namespace {

template <typename Widget>
Widget *named(Widget *widget, const char *name, const char *accessibleName)
{
    widget->setObjectName(name);
    widget->setAccessibleName(accessibleName);
    return widget;
}

QLabel *makeLabel(const char *name, QWidget *buddy)
{
    auto *label = new QLabel;
    label->setObjectName(name);
    QFont bold = label->font();
    bold.setWeight(QFont::DemiBold);
    label->setFont(bold);
    label->setBuddy(buddy);
    return label;
}

}  // namespace

FileReview::FileReview(QWidget *parent) : QWidget(parent)
{
    m_text = named(new NumberedText, "reviewText", "File");
    m_tabs = named(new QTabWidget, "reviewTabs", "Picture and file");
    m_tabs->tabBar()->setAccessibleName(m_tabs->accessibleName());
    m_tabs->setDocumentMode(true);
    m_tabs->addTab(makePicture(), "Picture");
    m_tabs->addTab(m_text, "File");
    m_tabs->setCornerWidget(makeReading());
    connect(m_tabs, &QTabWidget::currentChanged, this, &FileReview::showTextWhenLookedAt);

    auto *halves = new QSplitter;
    halves->setObjectName("reviewHalves");
    halves->addWidget(makeLists());
    halves->addWidget(m_tabs);
    halves->widget(0)->lower();  // the splitter puts each one before the others, for screen readers too
    halves->setStretchFactor(0, 1);
    halves->setStretchFactor(1, 1);
    halves->setChildrenCollapsible(false);
    halves->setHandleWidth(16);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(halves);

    connect(m_remarkList, &RemarkList::rowChosen, this,
            [this](int row) { emit placeChosen(m_remarks.at(static_cast<std::size_t>(row)).place); });
    connect(m_remarkList, &RemarkList::whyAsked, this,
            [this](int row) { emit whyAsked(m_remarks.at(static_cast<std::size_t>(row)).rule); });
}

QWidget *FileReview::makeLists()
{
    m_remarkList = named(new RemarkList, "reviewRemarks", "Remarks");
    m_remarkList->offerWhy();
    m_figureList = named(new FigureList, "reviewFigures", "Figures");
    m_remarksLabel = makeLabel("labRemarks", m_remarkList);
    m_remarksHint = new QuietLabel("A double click or Enter goes to the place, F1 says why.");
    m_remarksHint->setWordWrap(true);
    describe(*m_remarkList, m_remarksHint->text());
    QLabel *figuresLabel = makeLabel("labFigures", m_figureList);
    figuresLabel->setText("Figures");
    m_remarkList->setMinimumHeight(52);
    m_remarkList->fitHeight();
    m_figureList->setMinimumHeight(52);

    auto *lists = new QWidget;
    auto *layout = new QVBoxLayout(lists);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_remarksLabel);
    layout->addWidget(m_remarkList, 3);
    layout->addWidget(m_remarksHint);
    layout->addSpacing(4);
    layout->addWidget(figuresLabel);
    layout->addWidget(m_figureList, 3);
    return lists;
}

QWidget *FileReview::makePicture()
{
    m_picture = named(new PlotView, "reviewPicture", "Polar picture of the main planes");
    m_picture->setFrameStyle(QFrame::NoFrame);
    m_firstKey = new CurveKey;
    m_firstKey->setColour(kPaperLook.plane);
    m_secondKey = new CurveKey;
    m_secondKey->setColour(kPaperLook.cone);
    m_firstPlane = new QLabel;
    m_secondPlane = new QLabel;
    auto *keys = new QHBoxLayout;
    keys->setSpacing(6);
    keys->addStretch();
    keys->addWidget(m_firstKey);
    keys->addWidget(m_firstPlane);
    keys->addSpacing(12);
    keys->addWidget(m_secondKey);
    keys->addWidget(m_secondPlane);
    keys->addStretch();

    auto *whole = new QWidget;
    auto *layout = new QVBoxLayout(whole);
    layout->setContentsMargins(0, 6, 0, 0);
    layout->addWidget(m_picture, 1);
    layout->addLayout(keys);
    return whole;
}

/// The value that is marked in the picture, where the line of the tabs has room for it.
QWidget *FileReview::makeReading()
{
    m_reading = new QuietLabel;
    m_reading->setObjectName("reviewReading");
    m_reading->setTextFormat(Qt::PlainText);
    m_reading->hide();
    connect(m_picture, &PlotView::readingChanged, this, [this] {
        const auto &reading = m_picture->reading();
        m_reading->setText(reading ? QString::fromStdString(readingText(*reading)) : QString());
        m_reading->setVisible(reading.has_value());
    });
    return m_reading;
}

void FileReview::setDialogs(Dialogs &dialogs)
{
    m_picture->setDialogs(dialogs);
}

void FileReview::refresh()
{
    const PhotometricRecord &record = m_record();
    const Photometry photometry = photometryOf(record);
    m_remarks = remarksOf(record, photometry);
    showRemarks();
    std::vector<FigureRow> rows;
    for (Figure &figure : figuresOf(record, photometry))
        rows.push_back({figure.name, valueWithUnit(figure), figure.reason});
    m_figureList->showFigures(rows);
    showPicture(record);
    m_isTextDue = true;
    showTextWhenLookedAt();
}

void FileReview::showRemarks()
{
    std::vector<std::string> sentences;
    for (const Remark &remark : m_remarks)
        sentences.push_back(remark.text);
    m_remarkList->showRemarks(sentences);
    const bool hasRemarks = !sentences.empty();
    m_remarksLabel->setText(hasRemarks ? "Remarks (" + QString::number(sentences.size()) + ")" : "No remarks");
    m_remarkList->setVisible(hasRemarks);
    m_remarksHint->setVisible(hasRemarks);
}

void FileReview::showPicture(const PhotometricRecord &record)
{
    MainPlanes planes = mainPlanes(record);
    m_picture->setPicture(std::move(planes.picture));
    m_firstPlane->setText(toQString(planes.first));
    m_secondPlane->setText(toQString(planes.second));
    m_secondKey->setVisible(!planes.second.empty());
    m_secondPlane->setVisible(!planes.second.empty());
}

void FileReview::showTextWhenLookedAt()
{
    if (!m_isTextDue || m_tabs->currentWidget() != m_text)
        return;
    m_isTextDue = false;
    try {
        m_text->showText(iesFileText(m_record()));
    } catch (const RunTimeError &error) {
        m_text->showSentence("The file cannot be written: " + error.description() + ".");
    }
}

}  // namespace penwright
