#include "a11y/AccessibleText.h"

#include <algorithm>
#include <array>

namespace penwright::test {
namespace {

/// The states that are worth a word.
constexpr std::array kTold{"active",    "checked",  "expanded", "focused",   "modal",
                           "read-only", "selected", "editable", "multi-line"};

std::string quoted(const QString &text)
{
    return '"' + QString(text).replace('\n', "\\n").toStdString() + '"';
}

bool contains(const std::vector<std::string> &states, const std::string &state)
{
    return std::find(states.begin(), states.end(), state) != states.end();
}

std::string told(const std::vector<std::string> &states, bool isLabel)
{
    std::string text;
    const auto add = [&text](const std::string &word) { text += (text.empty() ? " [" : ", ") + word; };
    if (!contains(states, "enabled"))
        add("disabled");
    for (const std::string state : kTold)
        if (contains(states, state) && !(isLabel && state == "read-only"))
            add(state);
    return text.empty() ? text : text + "]";
}

std::string labels(const AccessibleObject &object)
{
    std::string text;
    for (const auto &[relation, targets] : object.relations())
        if (relation == "labelled-by")
            for (const QString &target : targets)
                text += (text.empty() ? " labelled by " : ", ") + quoted(target);
    return text;
}

class Reader {
public:
    void read(const AccessibleObject &object, int depth)
    {
        const std::vector<std::string> states = object.states();
        if (!contains(states, "showing"))
            return;
        const std::string role = object.roleName().toStdString();
        const QString name = object.name();
        const bool isHolder = name.isEmpty() && (role == "filler" || role == "panel" || role == "label");
        if (!isHolder)
            add(depth, role + " " + quoted(name) + (object.has("Text") ? " = " + quoted(object.text()) : "") +
                           description(object) + told(states, role == "label") + labels(object));
        if (object.has("Table") && role == "table")
            return readCells(object, depth + 1);
        for (const AccessibleObject &child : object.children())
            read(child, isHolder ? depth : depth + 1);
    }

    std::string text;

private:
    static std::string description(const AccessibleObject &object)
    {
        const QString description = object.description();
        return description.isEmpty() ? "" : " (" + QString(description).replace('\n', "\\n").toStdString() + ")";
    }

    void readCells(const AccessibleObject &table, int depth)
    {
        for (int row = 0; row < table.rows(); ++row)
            for (int column = 0; column < table.columns(); ++column) {
                const AccessibleObject cell = table.cell(row, column);
                add(depth, cell.roleName().toStdString() + " " + quoted(cell.name()) + " in row " +
                               quoted(table.rowHeader(row).name()) + ", column " +
                               quoted(table.columnHeader(column).name()) + description(cell) +
                               told(cell.states(), false));
            }
        for (const AccessibleObject &child : table.children())
            if (child.has("EditableText") || child.roleName() == "combo box")
                read(child, depth);
    }

    void add(int depth, const std::string &line) { text += std::string(2 * depth, ' ') + line + "\n"; }
};

}  // namespace

std::string accessibleText(const AccessibleObject &object)
{
    Reader reader;
    reader.read(object, 0);
    return reader.text;
}

std::string accessibleWindow(const AccessibleObject &desktop, const std::string &name)
{
    for (const AccessibleObject &program : desktop.children())
        for (const AccessibleObject &window : program.children())
            if (window.name().toStdString() == name && window.is("showing"))
                return accessibleText(window);
    return {};
}

}  // namespace penwright::test
