#pragma once

#include <optional>
#include <QColor>
#include <QProxyStyle>

namespace penwright {

/// The desktop's style, with outlines that are seen in any palette where it is the toolkit's own one: that one makes
/// the outlines of fields, boxes, options and buttons a little darker than the ground, so that none is seen on a dark
/// one, and a field that has the ground's colour has hardly a mark.
class OutlinedStyle : public QProxyStyle {
    Q_OBJECT

public:
    /// Has all windows of the program drawn so.
    static void install();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;

private:
    bool isOwn() const;
    QRect outlineOf(PrimitiveElement element, const QStyleOption &option) const;
};

/// The colour of the outlines that a palette calls for; nothing where the toolkit's own are seen.
std::optional<QColor> addedOutline(const QPalette &palette);

}  // namespace penwright
