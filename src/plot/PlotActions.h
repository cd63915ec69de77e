#pragma once

#include <QByteArray>
#include <QObject>

#include <functional>

class QAction;
class QMenu;
class QPoint;
class QWidget;

namespace penwright {

class Dialogs;
struct PlotPicture;

/// The menu of a picture box: another shape, a copy for the clipboard, a file. A file is written whole or not at all;
/// why it was not is told in one sentence.
class PlotActions : public QObject {
    Q_OBJECT

public:
    /// `picture` finds what is shown at the time in `box`.
    PlotActions(QWidget &box, std::function<const PlotPicture &()> picture);

    /// Without dialogs nothing can be saved.
    void setDialogs(Dialogs &dialogs);

    void popUp(const QPoint &place, bool isLinear);
    void copy();

signals:
    void linearChosen(bool isLinear);

private:
    QAction *add(const char *name, const QString &text, void (PlotActions::*act)());
    void saveSvg();
    void savePng();
    void save(const QByteArray &picture, const char *suffix, const char *filter);
    void tell(const QString &text);

    std::function<const PlotPicture &()> m_picture;
    Dialogs *m_dialogs = nullptr;
    QMenu *m_menu = nullptr;
    QAction *m_linear = nullptr;
    QAction *m_saveSvg = nullptr;
    QAction *m_savePng = nullptr;
};

}  // namespace penwright
