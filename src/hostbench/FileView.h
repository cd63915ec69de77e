#pragma once

#include <QWidget>

#include "hostbench/HeldFiles.h"

class QComboBox;
class QLabel;
class QPlainTextEdit;

namespace penwright {

class PlotView;

/// What a file holds: its text as it stands on disk, and its polar picture with the plane and the cone to look at.
class FileView : public QWidget {
    Q_OBJECT

public:
    explicit FileView(QWidget *parent = nullptr);

    /// Shows a file, its text as it stands on disk; the plane first shown goes through its largest value.
    void showFile(const HeldFile &file);

    /// Shows that no file is selected.
    void clear();

    /// Takes over the colours of the palette.
    void followPalette();

private:
    QWidget *makePicture();
    QComboBox *makeChoice(const char *name, const QString &accessibleName);
    void fillChoices();
    void drawCurves();

    PhotometricRecord m_record;
    QPlainTextEdit *m_text = nullptr;
    PlotView *m_picture = nullptr;
    QComboBox *m_plane = nullptr;
    QComboBox *m_cone = nullptr;
    QLabel *m_planeLabel = nullptr;
    QLabel *m_coneLabel = nullptr;
};

}  // namespace penwright
