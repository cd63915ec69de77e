#pragma once

#include <QByteArray>
#include <QObject>

class QAction;
class QMenu;
class QPoint;

namespace penwright {

class Dialogs;
class PlotView;

/// The menu of a picture box: another shape, a copy for the clipboard, a file. A file is written whole or not at all;
/// why it was not is told in one sentence.
class PlotActions : public QObject {
    Q_OBJECT

public:
    explicit PlotActions(PlotView &view);

    /// Without dialogs nothing can be saved.
    void setDialogs(Dialogs &dialogs);

    void popUp(const QPoint &place);
    void copy();

private:
    QAction *add(const char *name, const QString &text, void (PlotActions::*act)());
    void saveSvg();
    void savePng();
    void save(const QByteArray &picture, const char *suffix, const char *filter);
    void tell(const QString &text);

    PlotView &m_view;
    Dialogs *m_dialogs = nullptr;
    QMenu *m_menu = nullptr;
    QAction *m_linear = nullptr;
    QAction *m_saveSvg = nullptr;
    QAction *m_savePng = nullptr;
};

}  // namespace penwright
