#include "plot/PlotActions.h"

#include <QAction>
#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QSaveFile>
#include <QWidget>

#include <utility>

#include "core/NumberText.h"
#include "platform/Dialogs.h"
#include "plot/PlotExport.h"
#include "plot/PlotPicture.h"

namespace penwright {

namespace {

constexpr const char *kTitle = "Save Picture";

/// "" when the file is written.
QString writeFile(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    return isWritten ? QString() : file.errorString();
}

}  // namespace

PlotActions::PlotActions(QWidget &box, std::function<const PlotPicture &()> picture)
    : QObject(&box), m_picture(std::move(picture)), m_menu(new QMenu(&box))
{
    m_menu->setObjectName("mnuPlot");
    m_linear = m_menu->addAction(QStringLiteral("&Linear View"));
    m_linear->setObjectName("linearView");
    m_linear->setCheckable(true);
    connect(m_linear, &QAction::triggered, this, &PlotActions::linearChosen);
    m_menu->addSeparator();
    QAction *copyAction = add("copyPicture", QStringLiteral("&Copy Picture"), &PlotActions::copy);
    copyAction->setShortcut(QKeySequence::Copy);  // shown alone: the key itself is the view's
    copyAction->setShortcutContext(Qt::WidgetShortcut);
    copyAction->setShortcutVisibleInContextMenu(true);
    m_saveSvg = add("saveSvg", QStringLiteral("Save as &SVG..."), &PlotActions::saveSvg);
    m_savePng = add("savePng", QStringLiteral("Save as &PNG..."), &PlotActions::savePng);
    m_saveSvg->setVisible(false);
    m_savePng->setVisible(false);
}

QAction *PlotActions::add(const char *name, const QString &text, void (PlotActions::*act)())
{
    QAction *action = m_menu->addAction(text);
    action->setObjectName(name);
    connect(action, &QAction::triggered, this, act);
    return action;
}

void PlotActions::setDialogs(Dialogs &dialogs)
{
    m_dialogs = &dialogs;
    m_saveSvg->setVisible(true);
    m_savePng->setVisible(true);
}

void PlotActions::popUp(const QPoint &place, bool isLinear)
{
    m_linear->setChecked(isLinear);
    m_menu->popup(place);
}

void PlotActions::copy()
{
    auto *data = new QMimeData;
    data->setImageData(plotImage(m_picture()));
    data->setData("image/svg+xml", plotSvg(m_picture()));
    QGuiApplication::clipboard()->setMimeData(data);
}

void PlotActions::saveSvg()
{
    save(plotSvg(m_picture()), "svg", "SVG pictures (*.svg)|*.svg");
}

void PlotActions::savePng()
{
    save(plotPng(m_picture()), "png", "PNG pictures (*.png)|*.png");
}

void PlotActions::save(const QByteArray &picture, const char *suffix, const char *filter)
{
    const PlotCurves &curves = m_picture().curves;
    const std::string plane = curves.hasTwoPlanes ? "" : "-H" + generalText(curves.horizontalAngle);
    const auto chosen = m_dialogs->chooseSaveName({kTitle, filter, suffix, "candela-plot" + plane + "." + suffix});
    if (!chosen || chosen->empty())
        return;
    QString path = QString::fromStdString(*chosen);
    if (QFileInfo(path).suffix().compare(QLatin1String(suffix), Qt::CaseInsensitive) != 0)
        path += QStringLiteral(".") + suffix;
    const QString question = path + QStringLiteral(" exists already. Replace it?");
    if (QFileInfo::exists(path) &&
        m_dialogs->show({question.toStdString(), kYesNo + kExclamation, kTitle}) != Answer::Yes)
        return;
    const QString problem = writeFile(path, picture);
    if (!problem.isEmpty())
        tell(path + QStringLiteral(" was not saved: ") + problem);
}

void PlotActions::tell(const QString &text)
{
    m_dialogs->show({text.toStdString(), kExclamation, kTitle});
}

}  // namespace penwright
