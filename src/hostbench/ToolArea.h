#pragma once

#include <QWidget>

namespace penwright {

/// The place in the host's window where a tool lives: a native child window that the tool makes its own the child of.
class ToolArea : public QWidget {
    Q_OBJECT

public:
    explicit ToolArea(QWidget *parent = nullptr);

    /// The X11 number of the window that a tool is given.
    std::uint32_t windowNumber() const { return static_cast<std::uint32_t>(winId()); }

    /// Size in X11 pixels, as the display has it: with a fractional scale factor no rounding rule would tell.
    QSize pixels() const;

    /// Quiet words in the middle while no tool covers them.
    void setMessage(const QString &message);

signals:
    void resized();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QString m_message;
};

}  // namespace penwright
