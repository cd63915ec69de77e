#pragma once

#include <QFrame>

#include "plot/PlotLook.h"
#include "plot/PlotPicture.h"

namespace penwright {

/// A picture box: the vertical plane through a horizontal angle and, for type C, the cone through a vertical angle, as
/// a polar diagram that stays round in any shape of the box. White in every palette unless it follows the palette. Its
/// accessible description tells each curve's largest value.
class PlotView : public QFrame {
    Q_OBJECT

public:
    explicit PlotView(QWidget *parent = nullptr);

    /// Shows the two curves, as `plotPicture` finds them; keeps none of the arguments. After an error the picture is
    /// the one before.
    void draw(const PhotometricRecord &record, const OneBasedTable<CandelaCell> &cells, float horizontalAngle,
              float verticalAngle);

    void setPicture(PlotPicture picture);

    /// Paints in the colours of the palette, as it is at the time, and no longer on white.
    void setFollowsPalette();

    /// What the picture looks like now.
    PlotLook look() const;

    QSize sizeHint() const override { return {280, 280}; }
    QSize minimumSizeHint() const override { return {80, 80}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    PlotPicture m_picture;
    bool m_followsPalette = false;
};

}  // namespace penwright
