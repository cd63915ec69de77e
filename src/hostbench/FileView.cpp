#include "hostbench/FileView.h"

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

#include "controls/FigureList.h"
#include "controls/MixedColour.h"
#include "controls/NumberedText.h"
#include "controls/RemarkList.h"
#include "core/IesText.h"
#include "core/NumberText.h"
#include "platform/RunTimeError.h"
#include "plot/PlotStatus.h"
#include "plot/PlotView.h"

namespace penwright {

namespace {

/// The vertical angle of the cone first shown: that of the largest value, but straight down or up a cone is a point of
/// the sphere and its picture a circle that tells nothing; then the one nearest to half way out.
int coneFirstShown(const PhotometricRecord &record, int ofLargest)
{
    constexpr float kHalfWayOut = 45;
    const float angle = record.VertAngles(ofLargest);
    if (angle != 0 && angle != 180)
        return ofLargest;
    int nearest = 1;
    for (int v = 1; v <= record.NumVertAngles; ++v)
        if (std::abs(record.VertAngles(v) - kHalfWayOut) < std::abs(record.VertAngles(nearest) - kHalfWayOut))
            nearest = v;
    return nearest;
}

/// The angle that is chosen, of the list that a choice was filled with.
float chosen(const QComboBox &choice, const OneBased<float> &angles)
{
    const int place = choice.currentIndex() + 1;
    return place >= 1 && place <= angles.size() ? angles(place) : 0;
}

/// The empty grid for a record without angles and for one whose lists disagree.
PlotPicture pictureOf(const PhotometricRecord &record, float horizontalAngle, float verticalAngle)
{
    if (record.NumHorzAngles == 0 || record.NumVertAngles == 0)
        return {};
    try {
        return plotPicture(record, horizontalAngle, verticalAngle);
    } catch (const RunTimeError &) {
        return {};
    }
}

QLabel *headingOf(const QString &text)
{
    auto *heading = new QLabel(text);
    heading->setProperty("heading", true);
    return heading;
}

/// A list below its heading.
QWidget *partOf(QLabel *heading, QWidget *list)
{
    auto *part = new QWidget;
    auto *layout = new QVBoxLayout(part);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(heading);
    layout->addWidget(list, 1);
    return part;
}

/// The upper one gets two thirds of the height.
QWidget *stacked(QWidget *upper, QWidget *lower)
{
    auto *stack = new QSplitter(Qt::Vertical);
    stack->addWidget(upper);
    stack->addWidget(lower);
    stack->setStretchFactor(0, 2);
    stack->setStretchFactor(1, 1);
    stack->setSizes({400, 200});
    stack->setChildrenCollapsible(false);
    stack->setHandleWidth(10);
    return stack;
}

std::vector<FigureRow> rowsOf(const std::vector<Figure> &figures)
{
    std::vector<FigureRow> rows;
    for (const Figure &figure : figures)
        rows.push_back({figure.name, figure.unit.empty() ? figure.text : figure.text + " " + std::string(figure.unit),
                        figure.reason});
    return rows;
}

std::vector<std::string> sentencesOf(const std::vector<Remark> &remarks)
{
    std::vector<std::string> sentences;
    for (const Remark &remark : remarks)
        sentences.push_back(remark.text);
    return sentences;
}

void fill(QComboBox *choice, const OneBased<float> &angles)
{
    QStringList texts;
    qsizetype longest = 0;
    for (const float angle : angles) {
        texts.append(QString::fromStdString(generalText(angle)) + QChar(0xb0));
        longest = std::max(longest, texts.last().size());
    }
    choice->clear();
    choice->addItems(texts);
    // The contents' own width does not count the padding of the host's style.
    choice->setMinimumContentsLength(static_cast<int>(longest));
    choice->setMinimumWidth(choice->sizeHint().width());
    choice->setEnabled(!angles.empty());
}

}  // namespace

FileView::FileView(QWidget *parent) : QWidget(parent)
{
    auto *halves = new QSplitter;
    halves->addWidget(makeTextPart());
    halves->addWidget(makePicturePart());
    halves->setStretchFactor(0, 3);
    halves->setStretchFactor(1, 2);
    halves->setChildrenCollapsible(false);
    halves->setHandleWidth(12);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(halves);
    clear();
}

QWidget *FileView::makeTextPart()
{
    m_text = new NumberedText;
    m_text->setObjectName("fileText");
    m_text->setAccessibleName(tr("Text of the selected file"));
    m_text->setPlaceholderText(tr("Select a file to see its text, or start with New Photometric File..."));
    m_remarks = new RemarkList;
    m_remarks->setObjectName("remarkList");
    m_remarks->setAccessibleName(tr("Remarks on the selected file"));
    m_remarksHeading = headingOf({});
    m_remarksPart = partOf(m_remarksHeading, m_remarks);
    return stacked(m_text, m_remarksPart);
}

QWidget *FileView::makePicturePart()
{
    m_figures = new FigureList;
    m_figures->setObjectName("figureList");
    m_figures->setAccessibleName(tr("Figures of the selected file"));
    m_figuresPart = partOf(headingOf(tr("Figures")), m_figures);
    return stacked(makePicture(), m_figuresPart);
}

QComboBox *FileView::makeChoice(const char *name, const QString &accessibleName)
{
    auto *choice = new QComboBox;
    choice->setObjectName(name);
    choice->setAccessibleName(accessibleName);
    choice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(choice, &QComboBox::currentIndexChanged, this, &FileView::drawCurves);
    return choice;
}

QWidget *FileView::makePicture()
{
    auto *whole = new QFrame;
    whole->setObjectName("picture");
    m_picture = new PlotView;
    m_picture->setObjectName("polarPicture");
    m_picture->setAccessibleName(tr("Polar picture of the selected file"));
    m_picture->setFrameStyle(QFrame::NoFrame);
    m_picture->setMinimumSize(140, 140);
    m_picture->setDialogs(m_dialogs);
    auto *status = new PlotStatus;
    status->follow(*m_picture);
    m_picture->setFollowsPalette();
    m_plane = makeChoice("plane", tr("Horizontal angle of the vertical plane shown"));
    m_cone = makeChoice("cone", tr("Vertical angle of the cone shown"));
    m_planeLabel = new QLabel;
    m_coneLabel = new QLabel;
    m_planeLabel->setBuddy(m_plane);
    m_coneLabel->setBuddy(m_cone);
    auto *layout = new QGridLayout(whole);
    layout->addWidget(m_picture, 0, 0, 1, 2);
    layout->addWidget(status, 1, 0, 1, 2);
    layout->addWidget(m_planeLabel, 2, 0);
    layout->addWidget(m_plane, 2, 1);
    layout->addWidget(m_coneLabel, 3, 0);
    layout->addWidget(m_cone, 3, 1);
    layout->setRowStretch(0, 1);
    layout->setColumnStretch(1, 1);
    return whole;
}

void FileView::followPalette()
{
    QPalette own = m_text->palette();
    own.setColor(QPalette::PlaceholderText, quietText(QApplication::palette()));
    m_text->setPalette(own);
    const auto line = [](const QColor &colour, const QString &text) {
        return QStringLiteral("<span style=\"color: %1\">\u2501\u2501</span>&nbsp; %2").arg(colour.name(), text);
    };
    m_planeLabel->setText(line(m_picture->look().plane, tr("Vertical plane through H")));
    m_coneLabel->setText(line(m_picture->look().cone, tr("Cone through V")));
}

void FileView::showFile(SharedFile file)
{
    m_file = std::move(file);
    try {
        showText();
        const FileReview review = m_file->review ? *m_file->review : fileReview(record());
        fillChoices(review);
        showReview(review);
    } catch (const RunTimeError &error) {
        clear();
        m_text->showSentence(error.description());
    }
}

void FileView::showText()
{
    if (m_file->text.empty())
        m_text->showText(iesFileText(record()));
    else
        m_text->showText(std::shared_ptr<const std::string>(m_file, &m_file->text));
}

void FileView::showReview(const FileReview &review)
{
    m_figures->showFigures(rowsOf(review.figures));
    m_remarks->showRemarks(sentencesOf(review.remarks));
    const bool hasRemarks = !review.remarks.empty();
    m_remarksHeading->setText(hasRemarks ? tr("Remarks: %1").arg(review.remarks.size()) : tr("No remarks"));
    m_remarks->setVisible(hasRemarks);
    m_remarksPart->setMaximumHeight(hasRemarks ? QWIDGETSIZE_MAX : m_remarksHeading->sizeHint().height());
    m_remarksPart->show();
    m_figuresPart->show();
}

void FileView::clear()
{
    m_file = std::make_shared<const HeldFile>();
    m_text->showSentence({});
    m_remarksPart->hide();
    m_figuresPart->hide();
    fillChoices({});
}

void FileView::fillChoices(const FileReview &review)
{
    const QSignalBlocker blockers[]{QSignalBlocker(m_plane), QSignalBlocker(m_cone)};
    fill(m_plane, record().HorAngles);
    // Type B has no cone.
    const bool hasCone = record().PhotometricType == kTypeC || record().VertAngles.empty();
    fill(m_cone, hasCone ? record().VertAngles : OneBased<float>());
    m_cone->setVisible(hasCone);
    m_coneLabel->setVisible(hasCone);
    if (record().NumHorzAngles > 0 && record().NumVertAngles > 0) {
        m_plane->setCurrentIndex(review.largestHorizontal - 1);
        m_cone->setCurrentIndex(coneFirstShown(record(), review.largestVertical) - 1);
    }
    drawCurves();
}

void FileView::drawCurves()
{
    m_picture->setPicture(pictureOf(record(), chosen(*m_plane, record().HorAngles),
                                    m_cone->count() > 0 ? chosen(*m_cone, record().VertAngles) : 0));
}

}  // namespace penwright
