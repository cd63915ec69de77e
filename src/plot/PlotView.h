#pragma once

#include <QFrame>
#include <QPointF>
#include <QTimer>

#include <optional>

#include "plot/PlotLook.h"
#include "plot/PlotPicture.h"
#include "plot/PlotReading.h"

namespace penwright {

class Dialogs;
class PlotActions;

/// A picture box: the vertical plane through a horizontal angle and, for type C, the cone through a vertical angle, as
/// a polar diagram that stays round in any shape of the box, or as a linear one. White in every palette unless it
/// follows the palette. Its accessible description tells each curve's largest value.
///
/// The value nearest to the pointer is marked and told; so are those that arrow keys, Home and End lead to while it has
/// the focus. Screen readers are told where the pointer comes to rest, and each key's at once. A menu changes the
/// shape, copies the picture and, once there are dialogs, saves it.
class PlotView : public QFrame {
    Q_OBJECT

public:
    explicit PlotView(QWidget *parent = nullptr);
    ~PlotView() override;

    /// Shows the two curves, as `plotPicture` finds them; keeps none of the arguments. After an error the picture is
    /// the one before.
    void draw(const PhotometricRecord &record, const OneBasedTable<CandelaCell> &cells, const PlotAngle &horizontal,
              const PlotAngle &vertical);

    /// Shows a picture in the shape that is chosen now.
    void setPicture(PlotPicture picture);
    const PlotPicture &picture() const { return m_picture; }

    void setShape(PlotShape shape);
    PlotShape shape() const { return m_shape; }

    /// What saving asks with; they outlive the view.
    void setDialogs(Dialogs &dialogs);

    /// Paints in the colours of the palette, as it is at the time, and no longer on white.
    void setFollowsPalette();

    /// What the picture looks like now.
    PlotLook look() const;

    /// The value that is marked.
    const std::optional<PlotReading> &reading() const { return m_reading; }

    QSize sizeHint() const override { return {280, 176}; }
    QSize minimumSizeHint() const override { return {80, 80}; }

signals:
    /// Another value is marked, or none.
    void readingChanged();
    void shapeChanged(penwright::PlotShape shape);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    PlotScales scales() const;
    void readAnew();
    void readAtPointer();
    void setReading(std::optional<PlotReading> reading);
    void tellReading();
    void paintReading(QPainter &painter) const;

    PlotPicture m_picture;
    PlotShape m_shape = PlotShape::Polar;
    PlotActions *m_actions = nullptr;
    std::optional<PlotReading> m_reading;
    std::optional<QPointF> m_pointer;  ///< while it is over the picture
    QTimer m_rest;
    bool m_followsPalette = false;
};

}  // namespace penwright
