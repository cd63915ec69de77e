#include "wizard/PageFields.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

#include "grid/GridView.h"
#include "platform/qt/QtText.h"

namespace penwright {
namespace {

bool isOwnLine(const QLineEdit &line)
{
    return !line.isReadOnly() && !qobject_cast<QComboBox *>(line.parentWidget());
}

bool isBox(const QWidget &widget)
{
    const auto *line = qobject_cast<const QLineEdit *>(&widget);
    return (line && isOwnLine(*line)) || qobject_cast<const QComboBox *>(&widget) ||
           qobject_cast<const QRadioButton *>(&widget) || qobject_cast<const QCheckBox *>(&widget);
}

bool isOneLine(const std::string &text)
{
    return text.find_first_of("\t\r\n") == std::string::npos;
}

bool isPosition(const std::string &text, int count)
{
    for (int position = -1; position < count; ++position)
        if (text == std::to_string(position))
            return true;
    return false;
}

const std::string *textFor(const QWidget &box, const PageText &text)
{
    const auto it = text.find(box.objectName().toStdString());
    return it == text.end() ? nullptr : &it->second;
}

}  // namespace

PageFields::PageFields(const QWidget &form)
{
    for (QWidget *widget : form.findChildren<QWidget *>()) {
        if (auto *grid = qobject_cast<GridView *>(widget))
            m_grids.push_back(grid);
        else if (!widget->objectName().isEmpty() && isBox(*widget))
            m_boxes.push_back(widget);
    }
}

QString PageFields::textOf(const QWidget &box)
{
    if (const auto *line = qobject_cast<const QLineEdit *>(&box))
        return line->text();
    if (const auto *list = qobject_cast<const QComboBox *>(&box))
        return list->isEditable() ? list->currentText() : QString::number(list->currentIndex());
    const auto *button = qobject_cast<const QAbstractButton *>(&box);
    return button && button->isChecked() ? "1" : "0";
}

QLineEdit *PageFields::lineOf(QWidget *box)
{
    auto *list = qobject_cast<QComboBox *>(box);
    return list ? list->lineEdit() : qobject_cast<QLineEdit *>(box);
}

void PageFields::put(QWidget &box, const QString &text)
{
    const QSignalBlocker untold(&box);
    if (auto *line = qobject_cast<QLineEdit *>(&box)) {
        line->setText(text);
    } else if (auto *list = qobject_cast<QComboBox *>(&box)) {
        list->setCurrentIndex(list->isEditable() ? list->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive)
                                                 : text.toInt());
        if (list->isEditable())
            list->setEditText(text);
    } else if (auto *button = qobject_cast<QAbstractButton *>(&box)) {
        // Of options that exclude each other each is put by itself: none may have been chosen.
        const bool excludes = button->autoExclusive();
        button->setAutoExclusive(false);
        button->setChecked(text == "1");
        button->setAutoExclusive(excludes);
    }
}

PageValue PageFields::value() const
{
    PageValue value;
    for (const QWidget *box : m_boxes)
        value.push_back({box->objectName().toStdString(), [text = textOf(*box).toStdString()] { return text; }});
    for (const GridView *grid : m_grids)
        value.push_back({grid->objectName().toStdString(), grid->source().held()});
    return value;
}

std::optional<std::vector<PageFields::Change>> PageFields::changes(const PageText &text) const
{
    std::size_t known = 0;
    for (const QWidget *box : m_boxes)
        if (const std::string *wanted = textFor(*box, text)) {
            if (!canHold(*box, *wanted, text))
                return std::nullopt;
            ++known;
        }
    std::vector<Change> changes;
    for (GridView *grid : m_grids)
        if (const std::string *wanted = textFor(*grid, text)) {
            auto edit = grid->source().fromHeld(*wanted);
            if (!edit)
                return std::nullopt;
            changes.push_back({grid, *std::move(edit)});
            ++known;
        }
    return known == text.size() ? std::optional(std::move(changes)) : std::nullopt;
}

bool PageFields::canHold(const QWidget &box, const std::string &text, const PageText &all) const
{
    if (const auto *line = qobject_cast<const QLineEdit *>(&box))
        return isOneLine(text) && toQString(text).size() <= line->maxLength();
    if (const auto *list = qobject_cast<const QComboBox *>(&box))
        return list->isEditable() ? isOneLine(text) : isPosition(text, list->count());
    const auto *button = qobject_cast<const QAbstractButton *>(&box);
    const auto isChosenToo = [&](const QWidget *other) {
        const auto *option = qobject_cast<const QRadioButton *>(other);
        const std::string *wanted = textFor(*other, all);
        return option && option != button && option->parentWidget() == button->parentWidget() &&
               (wanted ? *wanted == "1" : option->isChecked());
    };
    if (text != "1" || !button->autoExclusive())
        return text == "0" || text == "1";
    return std::none_of(m_boxes.begin(), m_boxes.end(), isChosenToo);
}

}  // namespace penwright
