#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;

namespace penwright {

/// How far a file that takes long is read, with a button that stops it; hidden until there is one.
class OpeningBar : public QWidget {
    Q_OBJECT

public:
    explicit OpeningBar(QWidget *parent = nullptr);

    /// Shows that a file is read, and how much of it, 0 to 1.
    void showPart(const QString &name, double part);

signals:
    void cancelled();

private:
    QLabel *m_name;
    QProgressBar *m_progress;
};

}  // namespace penwright
