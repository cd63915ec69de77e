#include "hostbench/HostStyle.h"

#include <QColor>

#include <utility>

#include "controls/MixedColour.h"
#include "controls/OutlinedStyle.h"

namespace penwright {

namespace {

QString mix(const QColor &over, const QColor &under, float share)
{
    return mixedColour(over, under, share).name();
}

constexpr const char *kSheet = R"(
QMainWindow, QSplitter { background: @window; }
#toolBar { background: @base; border-bottom: 1px solid @line; }
QPushButton { padding: 6px 14px; border: 1px solid @border; border-radius: 4px; background: @base; color: @text; }
QPushButton:hover { background: @hover; }
QPushButton:focus:active { border-color: @accent; }
QPushButton:disabled { color: @disabled; border-color: @line; background: @window; }
QPushButton[primary="true"] { background: #1d5fa8; border-color: #1d5fa8; color: #ffffff; font-weight: bold; }
QPushButton[primary="true"]:hover, QPushButton[primary="true"]:focus:active { background: #174d88; border-color: @accent; }
QPushButton[primary="true"]:disabled { color: @disabled; border-color: @line; background: @window; }
QLabel[heading="true"] { font-weight: bold; color: @text; }
QLabel[quiet="true"] { color: @quiet; }
QPushButton:checked { background: @hover; }
QToolButton { font-weight: bold; color: @text; border: none; padding: 2px; }
QToolButton:focus { color: @accent; }
QToolButton#plotLinear { font-weight: normal; border: 1px solid @border; border-radius: 4px; padding: 3px 10px; }
QToolButton#plotLinear:checked { background: @hover; }
QToolButton#plotLinear:focus { border-color: @accent; }
QListWidget, QTreeWidget, QPlainTextEdit#fileText, QFrame#picture, #figureList, #remarkList { border: 1px solid @line; background: @base;
                                              selection-background-color: #1d5fa8; selection-color: #ffffff; }
QSplitter::handle { background: transparent; image: none; }
QTreeWidget::item { padding: 3px; }
QTreeWidget { alternate-background-color: @stripe; }
QHeaderView::section { background: @window; color: @quiet; border: none; border-bottom: 1px solid @line;
                       padding: 5px 3px; }
QTabWidget::pane { border: none; border-top: 1px solid @line; }
QTabBar::tab { padding: 7px 16px; color: @quiet; border-bottom: 2px solid transparent; }
QTabBar::tab:selected { color: @text; border-bottom: 2px solid @accent; }
)";

}  // namespace

QString hostStyleSheet(const QPalette &palette)
{
    const QColor window = palette.color(QPalette::Window);
    const QColor base = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::WindowText);
    const bool isDark = base.lightness() < text.lightness();
    const bool isPlain = addedOutline(palette).has_value();  // fields have hardly a mark but their outline
    const std::pair<const char *, QString> colours[] = {
        {"@window", mix(window, base, 0.6F)},
        {"@base", base.name()},
        {"@line", mix(text, base, isPlain ? 0.45F : 0.16F)},
        {"@border", mix(text, base, isPlain ? 0.60F : 0.28F)},
        {"@hover", mix(text, base, 0.07F)},
        {"@stripe", mix(text, base, 0.03F)},
        {"@text", text.name()},
        {"@quiet", quietText(palette, QPalette::WindowText).name()},
        {"@disabled", mix(text, base, 0.45F)},
        {"@accent", isDark ? "#6ea8e6" : "#1d5fa8"},
    };
    QString sheet = kSheet;
    for (const auto &[name, colour] : colours)
        sheet.replace(name, colour);
    return sheet;
}

}  // namespace penwright
