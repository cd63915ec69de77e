#pragma once

#include <string>
#include <vector>

#include "controls/WrappedList.h"

namespace penwright {

/// A figure as a list shows it.
struct FigureRow {
    std::string name;
    std::string value;   ///< with its unit
    std::string reason;  ///< why there is no value; "" where there is one
};

/// Figures, each name with its value beside it. Why there is none is told by the tool tip, which opens for the keys,
/// too. A screen reader hears name and value, or name and reason, as one text.
class FigureList : public WrappedList {
    Q_OBJECT

public:
    explicit FigureList(QWidget *parent = nullptr);

    void showFigures(const std::vector<FigureRow> &figures);

    QSize sizeHint() const override;

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
};

}  // namespace penwright
