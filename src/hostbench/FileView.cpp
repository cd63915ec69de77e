#include "hostbench/FileView.h"

#include <QApplication>
#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSplitter>

#include "controls/MixedColour.h"
#include "core/IesText.h"
#include "core/NumberText.h"
#include "platform/RunTimeError.h"
#include "plot/PlotView.h"

namespace penwright {

namespace {

/// The places, counted from 1, of the angles at which the largest value stands.
struct Place {
    int horizontal = 1;
    int vertical = 1;
};

Place placeOfLargest(const PhotometricRecord &record)
{
    Place place;
    for (int h = 1; h <= record.Candela.rows(); ++h)
        for (int v = 1; v <= record.Candela.columns(); ++v)
            if (record.Candela(h, v) > record.Candela(place.horizontal, place.vertical))
                place = {h, v};
    return place;
}

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

void fill(QComboBox *choice, const OneBased<float> &angles)
{
    choice->clear();
    for (const float angle : angles)
        choice->addItem(QString::fromStdString(generalText(angle)) + QChar(0xb0), angle);
    choice->setEnabled(!angles.empty());
}

}  // namespace

FileView::FileView(QWidget *parent) : QWidget(parent)
{
    m_text = new QPlainTextEdit;
    m_text->setObjectName("fileText");
    m_text->setAccessibleName(tr("Text of the selected file"));
    m_text->setReadOnly(true);
    m_text->document()->setDocumentMargin(10);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_text->setPlaceholderText(tr("Select a file to see its text, or start with New Photometric File..."));

    auto *halves = new QSplitter;
    halves->addWidget(m_text);
    halves->addWidget(makePicture());
    halves->setStretchFactor(0, 3);
    halves->setStretchFactor(1, 2);
    halves->setChildrenCollapsible(false);
    halves->setHandleWidth(12);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(halves);
    clear();
}

QComboBox *FileView::makeChoice(const char *name, const QString &accessibleName)
{
    auto *choice = new QComboBox;
    choice->setObjectName(name);
    choice->setAccessibleName(accessibleName);
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
    m_picture->setFollowsPalette();
    m_plane = makeChoice("plane", tr("Horizontal angle of the vertical plane shown"));
    m_cone = makeChoice("cone", tr("Vertical angle of the cone shown"));
    m_planeLabel = new QLabel;
    m_coneLabel = new QLabel;
    m_planeLabel->setBuddy(m_plane);
    m_coneLabel->setBuddy(m_cone);
    auto *layout = new QGridLayout(whole);
    layout->addWidget(m_picture, 0, 0, 1, 2);
    layout->addWidget(m_planeLabel, 1, 0);
    layout->addWidget(m_plane, 1, 1);
    layout->addWidget(m_coneLabel, 2, 0);
    layout->addWidget(m_cone, 2, 1);
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

void FileView::showFile(const HeldFile &file)
{
    m_record = file.record;
    try {
        m_text->setPlainText(QString::fromStdString(file.text.empty() ? iesFileText(file.record) : file.text));
        fillChoices();
    } catch (const RunTimeError &error) {
        clear();
        m_text->setPlainText(QString::fromStdString(error.description()));
    }
}

void FileView::clear()
{
    m_record = {};
    m_text->clear();
    fillChoices();
}

void FileView::fillChoices()
{
    const QSignalBlocker blockers[]{QSignalBlocker(m_plane), QSignalBlocker(m_cone)};
    fill(m_plane, m_record.HorAngles);
    // Type B has no cone.
    const bool hasCone = m_record.PhotometricType == kTypeC || m_record.VertAngles.empty();
    fill(m_cone, hasCone ? m_record.VertAngles : OneBased<float>());
    m_cone->setVisible(hasCone);
    m_coneLabel->setVisible(hasCone);
    if (m_record.NumHorzAngles > 0 && m_record.NumVertAngles > 0) {
        const Place largest = placeOfLargest(m_record);
        m_plane->setCurrentIndex(largest.horizontal - 1);
        m_cone->setCurrentIndex(coneFirstShown(m_record, largest.vertical) - 1);
    }
    drawCurves();
}

void FileView::drawCurves()
{
    m_picture->setPicture(pictureOf(m_record, m_plane->currentData().toFloat(), m_cone->currentData().toFloat()));
}

}  // namespace penwright
