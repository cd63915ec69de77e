#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/ToolState.h"
#include "pages/candela/CandelaTable.h"
#include "support/GridEdits.h"

namespace penwright::test {

/// A candela table over a record of its own, as the page of the photometric distribution leaves it.
class CandelaTest : public testing::Test {
protected:
    CandelaTest() { state.PhotFiles.reset(1); }

    void giveAngles(const std::vector<float> &horizontal, const std::vector<float> &vertical,
                    std::int16_t type = kTypeC)
    {
        record().PhotometricType = type;
        record().HorAngles.clear();
        record().VertAngles.clear();
        for (const float angle : horizontal)
            record().HorAngles.append(angle);
        for (const float angle : vertical)
            record().VertAngles.append(angle);
        record().NumHorzAngles = static_cast<std::int16_t>(horizontal.size());
        record().NumVertAngles = static_cast<std::int16_t>(vertical.size());
    }

    void build(const std::vector<float> &horizontal, const std::vector<float> &vertical, std::int16_t type = kTypeC)
    {
        giveAngles(horizontal, vertical, type);
        lsbStart();
    }

    void lsbStart() { apply(table, table.newTable()); }

    /// All texts of the grid, columns separated by "|", a line for each row, captions first.
    std::string shown() const
    {
        std::string text;
        for (int row = 0; row <= table.rowCount(); ++row)
            for (int column = 0; column < table.columnCount(); ++column)
                text += (row == 0 ? table.columnCaption(column) : table.read(row, column)) +
                        (column + 1 < table.columnCount() ? "|" : "\n");
        return text;
    }

    PhotometricRecord &record() { return state.PhotFiles(1); }
    PhotometricRecord &work() { return state.CandelaWorkRecord(1); }

    ToolState state;
    CandelaTable table{state, "The page"};
    CandelaState &flags = table.flags();
};

/// What a message box shows, by text and title; "" for none.
inline std::string told(const std::optional<MessageBox> &box)
{
    return box ? "[" + box->title + "|" + std::to_string(box->flags) + "] " + box->text : "";
}

}  // namespace penwright::test
