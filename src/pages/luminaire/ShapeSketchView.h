#pragma once

#include <QWidget>

#include "pages/luminaire/ShapeSketch.h"

namespace penwright {

/// The picture of a luminous shape, as large as the widget allows.
class ShapeSketchView : public QWidget {
    Q_OBJECT

public:
    explicit ShapeSketchView(QWidget *parent = nullptr);

    /// Draws the shape at a list position; outside the list the frame of reference alone.
    void setShape(int position);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    ShapeSketch m_sketch;
};

}  // namespace penwright
