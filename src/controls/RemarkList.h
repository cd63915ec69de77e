#pragma once

#include <string>
#include <vector>

#include "controls/WrappedList.h"

namespace penwright {

/// Remarks, each one sentence, and where somebody can say it the word "why" at its end. A double click and Enter choose
/// a remark; a click on "why" asks for its reason, and F1 for that of the current remark.
class RemarkList : public WrappedList {
    Q_OBJECT

public:
    explicit RemarkList(QWidget *parent = nullptr);

    /// Shows the word "why" from now on.
    void offerWhy();

    void showRemarks(const std::vector<std::string> &sentences);

    QSize sizeHint() const override;

signals:
    void whyAsked(int row);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    int whyAt(const QPoint &place) const;

    bool m_hasWhy = false;
    int m_pressedWhy = -1;
};

}  // namespace penwright
