#include "plot/PlotStatus.h"

#include <QHBoxLayout>
#include <QToolButton>

#include "controls/QuietLabel.h"
#include "plot/PlotView.h"

namespace penwright {

PlotStatus::PlotStatus(QWidget *parent) : QWidget(parent)
{
    m_reading = new QuietLabel;
    m_reading->setObjectName("plotReading");
    m_reading->setTextFormat(Qt::PlainText);
    m_reading->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_linear = new QToolButton;
    m_linear->setObjectName("plotLinear");
    m_linear->setText(QStringLiteral("&Linear"));
    m_linear->setToolTip(QStringLiteral("Shows the angles along a line instead of around a centre"));
    m_linear->setAccessibleName(QStringLiteral("Linear view"));
    m_linear->setAccessibleDescription(m_linear->toolTip());
    m_linear->setCheckable(true);
    m_linear->setFocusPolicy(Qt::StrongFocus);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    row->addWidget(m_reading, 1);
    row->addWidget(m_linear);
}

void PlotStatus::follow(PlotView &view)
{
    connect(&view, &PlotView::readingChanged, this, [this, &view] { showReading(view); });
    connect(&view, &PlotView::shapeChanged, m_linear,
            [this](PlotShape shape) { m_linear->setChecked(shape == PlotShape::Linear); });
    connect(m_linear, &QToolButton::toggled, &view,
            [&view](bool isLinear) { view.setShape(isLinear ? PlotShape::Linear : PlotShape::Polar); });
    showReading(view);
}

void PlotStatus::showReading(const PlotView &view)
{
    m_reading->setText(view.reading() ? QString::fromStdString(readingText(*view.reading()))
                                      : QStringLiteral("Point at a curve to read it"));
}

}  // namespace penwright
