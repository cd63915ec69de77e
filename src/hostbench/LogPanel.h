#pragma once

#include <QWidget>

#include "hostbench/LinkLog.h"

class QLabel;
class QToolButton;

namespace penwright {

/// The log of the link below a heading that folds it away; folded, the heading shows the newest line.
class LogPanel : public QWidget {
    Q_OBJECT

public:
    explicit LogPanel(QWidget *parent = nullptr);

    void append(const QString &tool, ToolRun::Line line, const QString &text);

    void setFolded(bool isFolded);

signals:
    void folded(bool isFolded);

private:
    QToolButton *m_fold = nullptr;
    QLabel *m_newest = nullptr;
    LinkLog *m_log = nullptr;
};

}  // namespace penwright
