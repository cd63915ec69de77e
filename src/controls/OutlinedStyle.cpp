#include "controls/OutlinedStyle.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <QApplication>
#include <QPainter>
#include <QStyleOption>

#include "controls/MixedColour.h"

namespace penwright {
namespace {

constexpr int kToolkitsDarker = 140;  ///< percent, of an outline of the toolkit's against the ground
constexpr double kSeen = 1.5;
constexpr double kToldApart = 1.05;
constexpr float kShareOfText = 0.6F;
constexpr double kRound = 2;

double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

/// From 1 for equal colours to 21 for black and white.
double contrast(const QColor &one, const QColor &other)
{
    const double lights[]{luminance(one), luminance(other)};
    return (std::max(lights[0], lights[1]) + 0.05) / (std::min(lights[0], lights[1]) + 0.05);
}

QPen penFor(const QColor &colour, const QStyleOption &option)
{
    const bool hasFocus = option.state & QStyle::State_HasFocus;
    if (!hasFocus)
        return colour;
    const QColor highlight = option.palette.color(QPalette::Highlight);
    const QColor ground = option.palette.color(QPalette::Window);
    return contrast(highlight, ground) > kSeen ? highlight : option.palette.color(QPalette::WindowText);
}

void drawBox(QPainter &painter, const QPen &pen, const QRect &rect, double round)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, round > 0);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(pen);
    painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), round, round);
    painter.restore();
}

void drawRing(QPainter &painter, const QPen &pen, const QRect &rect)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(pen);
    painter.drawEllipse(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.restore();
}

struct BoxRow {
    QStyle::PrimitiveElement element;
    double round;
};

constexpr std::array<BoxRow, 9> kBoxes{{{QStyle::PE_Frame, 0},
                                        {QStyle::PE_FrameMenu, 0},
                                        {QStyle::PE_FrameGroupBox, kRound},
                                        {QStyle::PE_FrameLineEdit, kRound},
                                        {QStyle::PE_FrameTabWidget, 0},
                                        {QStyle::PE_IndicatorCheckBox, 0},
                                        {QStyle::PE_PanelButtonCommand, kRound},
                                        {QStyle::PE_PanelButtonTool, kRound},
                                        {QStyle::PE_PanelTipLabel, 0}}};

}  // namespace

std::optional<QColor> addedOutline(const QPalette &palette)
{
    const QColor ground = palette.color(QPalette::Window);
    const bool isSeen = contrast(ground.darker(kToolkitsDarker), ground) > kSeen;
    const bool isFilled = contrast(palette.color(QPalette::Base), ground) > kToldApart;
    if (isSeen && isFilled)
        return std::nullopt;
    return mixedColour(palette.color(QPalette::WindowText), ground, kShareOfText);
}

void OutlinedStyle::install()
{
    QApplication::setStyle(new OutlinedStyle);
}

bool OutlinedStyle::isOwn() const
{
    return baseStyle()->name() == QLatin1String("fusion");
}

void OutlinedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                  const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const auto box =
        std::find_if(kBoxes.begin(), kBoxes.end(), [element](const BoxRow &row) { return row.element == element; });
    const bool isRing = element == PE_IndicatorRadioButton;
    if ((box == kBoxes.end() && !isRing) || !isOwn())
        return;
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (button && (button->features & QStyleOptionButton::Flat))
        return;
    const auto colour = addedOutline(option->palette);
    if (colour && isRing)
        drawRing(*painter, penFor(*colour, *option), option->rect);
    else if (colour)
        drawBox(*painter, penFor(*colour, *option), outlineOf(element, *option), box->round);
}

/// Where the toolkit draws its own outline of an element: around a group below its title.
QRect OutlinedStyle::outlineOf(PrimitiveElement element, const QStyleOption &option) const
{
    constexpr int kBelowTitle = 3;
    const int title = std::max(proxy()->pixelMetric(PM_ExclusiveIndicatorHeight), option.fontMetrics.height());
    return element == PE_FrameGroupBox ? option.rect.adjusted(0, title + kBelowTitle, 0, 0) : option.rect;
}

void OutlinedStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                                const QWidget *widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    if ((element != CE_HeaderSection && element != CE_TabBarTabShape && element != CE_ProgressBarGroove) || !isOwn())
        return;
    const auto colour = addedOutline(option->palette);
    if (!colour)
        return;
    const QRect rect = option->rect;
    if (element == CE_ProgressBarGroove)
        return drawBox(*painter, *colour, rect, kRound);
    painter->save();
    painter->setPen(*colour);
    painter->drawLine(rect.topRight(), rect.bottomRight());
    if (element == CE_TabBarTabShape) {
        painter->drawLine(rect.topLeft(), rect.topRight());
        painter->drawLine(rect.topLeft(), rect.bottomLeft());
    } else {
        painter->drawLine(rect.bottomLeft(), rect.bottomRight());
    }
    painter->restore();
}

void OutlinedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                       const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if ((control != CC_ComboBox && control != CC_ScrollBar && control != CC_SpinBox) || !isOwn())
        return;
    const auto colour = addedOutline(option->palette);
    if (!colour)
        return;
    const auto *list = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    const auto *figure = qstyleoption_cast<const QStyleOptionSpinBox *>(option);
    if (control == CC_ScrollBar)
        drawBox(*painter, *colour, subControlRect(control, option, SC_ScrollBarSlider, widget), 0);
    else if ((list && list->frame) || (figure && figure->frame))
        drawBox(*painter, penFor(*colour, *option), option->rect, kRound);
}

}  // namespace penwright
