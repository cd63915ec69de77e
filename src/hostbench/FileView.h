#pragma once

#include <QWidget>

#include "hostbench/HeldFiles.h"
#include "platform/qt/Closing.h"
#include "platform/qt/OwnerWindow.h"
#include "platform/qt/QtDialogs.h"

class QComboBox;
class QLabel;

namespace penwright {

class FigureList;
class NumberedText;
class PlotView;
class RemarkList;

/// What a file holds: its text as it stands on disk, remarks on what is likely wrong, its plot with the plane and the
/// cone to look at, and its figures.
class FileView : public QWidget {
    Q_OBJECT

public:
    explicit FileView(QWidget *parent = nullptr);

    /// Shows a file, its text as it stands on disk; the plane first shown goes through its largest value.
    void showFile(SharedFile file);

    /// Shows that no file is selected.
    void clear();

    /// Takes over the colours of the palette.
    void followPalette();

private:
    QWidget *makeTextPart();
    QWidget *makePicturePart();
    QWidget *makePicture();
    QComboBox *makeChoice(const char *name, const QString &accessibleName);
    void showText();
    void showReview(const FileReview &review);
    void fillChoices(const FileReview &review);
    void drawCurves();

    const PhotometricRecord &record() const { return m_file->record; }

    SharedFile m_file = std::make_shared<const HeldFile>();  ///< an empty one where none is shown
    Closing m_closing;  ///< never begun: the host's dialogs are closed by its user alone
    OwnerWindow m_owner{this};
    QtDialogs m_dialogs{m_closing, m_owner};
    NumberedText *m_text = nullptr;
    QWidget *m_remarksPart = nullptr;
    QLabel *m_remarksHeading = nullptr;
    RemarkList *m_remarks = nullptr;
    FigureList *m_figures = nullptr;
    QWidget *m_figuresPart = nullptr;
    PlotView *m_picture = nullptr;
    QComboBox *m_plane = nullptr;
    QComboBox *m_cone = nullptr;
    QLabel *m_planeLabel = nullptr;
    QLabel *m_coneLabel = nullptr;
};

}  // namespace penwright
