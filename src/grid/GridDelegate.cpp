#include "grid/GridDelegate.h"

#include <algorithm>
#include <limits>
#include <QAbstractItemView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPainter>
#include <QToolTip>

#include "controls/MixedColour.h"
#include "controls/OneLine.h"
#include "grid/GridChoiceBox.h"
#include "grid/GridModel.h"

namespace penwright {
namespace {

constexpr int kArrowWidth = 20;

std::vector<GridChoice> choicesOf(const QModelIndex &index)
{
    return static_cast<const GridModel *>(index.model())->choices(index);
}

void paintArrow(QPainter &painter, const QStyleOptionViewItem &cell)
{
    QStyleOption arrow;
    arrow.rect = GridDelegate::arrowRect(cell.rect);
    arrow.palette = cell.palette;
    arrow.state = QStyle::State_Enabled;
    painter.fillRect(arrow.rect, cell.palette.button());
    arrow.rect.adjust(4, 4, -4, -4);
    cell.widget->style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &painter, cell.widget);
}

/// Shows the selected cells of a grid that the keys do not go to as plain text on a pale ground.
void mute(QPalette &palette)
{
    constexpr float kShareOfHighlight = 0.25F;
    palette.setColor(QPalette::Highlight,
                     mixedColour(palette.color(QPalette::Highlight), palette.color(QPalette::Base), kShareOfHighlight));
    palette.setColor(QPalette::HighlightedText, palette.color(QPalette::Text));
}

}  // namespace

QLineEdit *editorLine(QWidget *editor)
{
    auto *box = qobject_cast<QComboBox *>(editor);
    return box ? box->lineEdit() : qobject_cast<QLineEdit *>(editor);
}

GridDelegate::GridDelegate(QAbstractItemView *view) : QStyledItemDelegate(view), m_view(view) {}

QRect GridDelegate::arrowRect(const QRect &cell)
{
    return cell.adjusted(std::max(0, cell.width() - kArrowWidth), 0, 0, 0);
}

void GridDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    if (index == m_view->currentIndex() && !choicesOf(index).empty())
        paintArrow(*painter, option);
}

void GridDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->displayAlignment = m_alignment | Qt::AlignVCenter;
    if (!m_view->hasFocus())
        mute(option->palette);
}

QWidget *GridDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &index) const
{
    const auto choices = choicesOf(index);
    QWidget *editor =
        choices.empty() ? static_cast<QWidget *>(new QLineEdit(parent)) : new GridChoiceBox(choices, parent);
    editorLine(editor)->setMaxLength(std::numeric_limits<int>::max());
    editorLine(editor)->setValidator(new OneLine(editor));
    editorLine(editor)->setAlignment(m_alignment | Qt::AlignVCenter);
    const QString name = static_cast<const GridModel *>(index.model())->cellName(index);
    editor->setAccessibleName(name);
    editorLine(editor)->setAccessibleName(name);
    if (editor != editorLine(editor))
        editor->setAccessibleDescription(name);  // its text stands for its name
    editor->setAutoFillBackground(true);
    connect(editorLine(editor), &QLineEdit::textChanged, this,
            [this, editor, cell = QPersistentModelIndex(index)] { fit(*editor, m_view->visualRect(cell)); });
    return editor;
}

void GridDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const QString text = index.data(Qt::EditRole).toString();
    if (auto *box = qobject_cast<QComboBox *>(editor)) {
        box->setCurrentIndex(box->findText(text, Qt::MatchFixedString | Qt::MatchCaseSensitive));
        box->setEditText(text);
    } else {
        editorLine(editor)->setText(text);
    }
    editorLine(editor)->selectAll();
}

void GridDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    const QLineEdit &line = *editorLine(editor);
    // What is typed anew is a new value even where it reads the same: a cell may hold more digits than it shows.
    if (line.isModified() || line.text() != index.data(Qt::EditRole).toString())
        model->setData(index, line.text(), Qt::EditRole);
}

void GridDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option, const QModelIndex &) const
{
    fit(*editor, option.rect);
}

void GridDelegate::fit(QWidget &editor, const QRect &cell) const
{
    constexpr int kAround = 14;  // the line's frame and margins, and the cursor
    const QLineEdit &line = *editorLine(&editor);
    const int needed = line.fontMetrics().horizontalAdvance(line.text()) + kAround;
    const int room = editor.parentWidget()->width();
    QRect place = cell;
    if (&line == &editor && needed > cell.width()) {
        place.setWidth(std::max(cell.width(), std::min(needed, room)));
        place.moveLeft(std::max(0, std::min(cell.left(), room - place.width())));
    }
    editor.setGeometry(place);
}

bool GridDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                             const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const bool isCut = index.isValid() && sizeHint(option, index).width() > view->visualRect(index).width();
    const QString text = isCut ? index.data().toString() : QString();
    QToolTip::showText(event->globalPos(), isCut ? Qt::convertFromPlainText(text) : QString(), view);
    return isCut;
}

}  // namespace penwright
