#pragma once

#include <QWidget>

class QToolButton;

namespace penwright {

class PlotView;
class QuietLabel;

/// The line under a picture box: the value that is marked in it, and the switch to its linear view.
class PlotStatus : public QWidget {
    Q_OBJECT

public:
    explicit PlotStatus(QWidget *parent = nullptr);

    /// Shows what `view` marks from now on.
    void follow(PlotView &view);

private:
    void showReading(const PlotView &view);

    QuietLabel *m_reading = nullptr;
    QToolButton *m_linear = nullptr;
};

}  // namespace penwright
