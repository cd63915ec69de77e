#pragma once

#include <QColor>
#include <QWidget>

namespace penwright {

/// A short line in the colour of one of the plot's curves, on the plot's paper, beside the name of what it shows.
class CurveKey : public QWidget {
    Q_OBJECT

public:
    explicit CurveKey(QWidget *parent = nullptr);

    void setColour(const QColor &colour);

    QSize sizeHint() const override { return {22, 14}; }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_colour;
};

}  // namespace penwright
