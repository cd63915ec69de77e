#include "hostbench/LinkLog.h"

#include <QFontDatabase>
#include <QHeaderView>
#include <QTime>

#include "controls/MixedColour.h"

namespace penwright {

namespace {

enum Column { kTime, kTool, kWay, kText };

constexpr int kMostLines = 1000;
constexpr int kMostCharacters = 300;

QString wayText(ToolRun::Line way)
{
    switch (way) {
        case ToolRun::Line::ToTool:
            return LinkLog::tr("to tool \u2192");
        case ToolRun::Line::FromTool:
            return LinkLog::tr("\u2190 from tool");
        default:
            return {};
    }
}

}  // namespace

LinkLog::LinkLog(QWidget *parent) : QTreeWidget(parent)
{
    setObjectName("linkLog");
    setAccessibleName(tr("Commands between host and tools"));
    setHeaderLabels({tr("Time"), tr("Tool"), tr("Way"), tr("Command")});
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTextElideMode(Qt::ElideRight);
    header()->setSectionsMovable(false);
    const QFontMetrics metrics(font());
    setColumnWidth(kTime, metrics.horizontalAdvance("00:00:00.000") + 28);
    setColumnWidth(kTool, metrics.horizontalAdvance("Tool 000") + 28);
    setColumnWidth(kWay, metrics.horizontalAdvance(wayText(ToolRun::Line::FromTool)) + 28);
}

void LinkLog::append(const QString &tool, ToolRun::Line way, const QString &text)
{
    // A tool may post megabytes; a line of the log is for reading.
    const bool isLong = text.size() > kMostCharacters;
    const QString shown = isLong ? text.left(kMostCharacters) + QChar(0x2026) : text;
    auto *line = new QTreeWidgetItem({QTime::currentTime().toString("HH:mm:ss.zzz"), tool, wayText(way), shown});
    line->setToolTip(kText, shown);
    if (way == ToolRun::Line::Note)
        for (int column = kTime; column <= kText; ++column)
            line->setForeground(column, quietText(palette()));
    addTopLevelItem(line);
    if (topLevelItemCount() > kMostLines)
        delete takeTopLevelItem(0);
    scrollToItem(line);
}

QString LinkLog::newestLine() const
{
    if (topLevelItemCount() == 0)
        return {};
    const QTreeWidgetItem *line = topLevelItem(topLevelItemCount() - 1);
    return QStringList{line->text(kTime), line->text(kTool), line->text(kWay), line->text(kText)}
        .join("  ")
        .simplified();
}

}  // namespace penwright
