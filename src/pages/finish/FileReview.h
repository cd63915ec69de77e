#pragma once

#include <QWidget>

#include <functional>
#include <vector>

#include "core/PhotometricRecord.h"
#include "review/Remark.h"

class QLabel;
class QTabWidget;

namespace penwright {

class CurveKey;
class Dialogs;
class FigureList;
class NumberedText;
class PlotView;
class QuietLabel;
class RemarkList;

/// What a finished file says, to be read before it is handed over: remarks and figures on the left, on the right the
/// picture of its main planes and, behind a tab, its text.
class FileReview : public QWidget {
    Q_OBJECT

public:
    using Record = std::function<const PhotometricRecord &()>;

    explicit FileReview(QWidget *parent = nullptr);

    /// Where the record is found, each time it is looked at.
    void setRecord(Record record) { m_record = std::move(record); }

    /// What saving the picture asks with; they outlive the review.
    void setDialogs(Dialogs &dialogs);

    /// Shows the record as it is now. Its text, which takes the longest, is made once its tab is looked at.
    void refresh();

    /// What fits on the page at the window's first size; it takes more where there is more.
    QSize sizeHint() const override { return {600, 230}; }

signals:
    /// The user wants to go to where a remark's place is typed.
    void placeChosen(const penwright::RecordPlace &place);

    /// The user wants to know why a rule's remarks are made.
    void whyAsked(penwright::RemarkRule rule);

private:
    QWidget *makeLists();
    QWidget *makePicture();
    QWidget *makeReading();
    void showRemarks();
    void showPicture(const PhotometricRecord &record);
    void showTextWhenLookedAt();

    Record m_record;
    std::vector<Remark> m_remarks;
    bool m_isTextDue = false;

    QLabel *m_remarksLabel = nullptr;
    QLabel *m_remarksHint = nullptr;
    RemarkList *m_remarkList = nullptr;
    FigureList *m_figureList = nullptr;
    QTabWidget *m_tabs = nullptr;
    PlotView *m_picture = nullptr;
    QuietLabel *m_reading = nullptr;
    CurveKey *m_firstKey = nullptr;
    CurveKey *m_secondKey = nullptr;
    QLabel *m_firstPlane = nullptr;
    QLabel *m_secondPlane = nullptr;
    NumberedText *m_text = nullptr;
};

}  // namespace penwright
