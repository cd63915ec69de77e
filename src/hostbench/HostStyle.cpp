#include "hostbench/HostStyle.h"

namespace penwright {

QString hostStyleSheet()
{
    return R"(
QMainWindow, QSplitter { background: #f4f5f7; }
#toolBar { background: #ffffff; border-bottom: 1px solid #d9dce1; }
QPushButton { padding: 6px 14px; border: 1px solid #c3c8d0; border-radius: 4px; background: #ffffff; color: #1f2933; }
QPushButton:hover { background: #eef1f5; }
QPushButton:focus:active { border-color: #1d5fa8; }
QPushButton:disabled { color: #9aa3ae; border-color: #e1e4e8; background: #fafbfc; }
QPushButton[primary="true"] { background: #1d5fa8; border-color: #1d5fa8; color: #ffffff; font-weight: bold; }
QPushButton[primary="true"]:hover, QPushButton[primary="true"]:focus:active { background: #174d88; border-color: #0f3866; }
QPushButton[primary="true"]:disabled { background: #a9c1dc; border-color: #a9c1dc; }
QLabel[heading="true"] { font-weight: bold; color: #1f2933; }
QLabel[quiet="true"] { color: #66717f; }
QListWidget, QTreeWidget, QPlainTextEdit#fileText { border: 1px solid #d9dce1; background: #ffffff;
                                              selection-background-color: #1d5fa8; }
QSplitter::handle { background: transparent; image: none; }
QTreeWidget::item { padding: 3px; }
QTreeWidget { alternate-background-color: #f8f9fb; }
QHeaderView::section { background: #f4f5f7; color: #66717f; border: none; border-bottom: 1px solid #d9dce1;
                       padding: 5px 3px; }
QTabWidget::pane { border: none; border-top: 1px solid #d9dce1; }
QTabBar::tab { padding: 7px 16px; color: #66717f; border-bottom: 2px solid transparent; }
QTabBar::tab:selected { color: #1f2933; border-bottom: 2px solid #1d5fa8; }
)";
}

}  // namespace penwright
