#pragma once

#include <QClipboard>
#include <QGuiApplication>

#include "support/RecordAngles.h"
#include "widgets/WizardTest.h"

namespace penwright::test {

/// The wizard on page 5, over a record with angles as page 4 stores them.
class CandelaPageTest : public WizardTest {
protected:
    void SetUp() override { startWizard(); }

    void giveAngles(const std::vector<float> &horizontal, const std::vector<float> &vertical,
                    std::int16_t type = kTypeC)
    {
        setAngles(state.PhotFiles(1), type, horizontal, vertical);
    }

    /// What page 4 does when it is left by Next, and what follows a tenth of a second later.
    void showTable(const std::vector<float> &horizontal, const std::vector<float> &vertical, std::int16_t type = kTypeC)
    {
        showTableBeforeFlip(horizontal, vertical, type);
        flip();
    }

    /// The same up to that; however slowly the test goes on, it follows at `flip`.
    void showTableBeforeFlip(const std::vector<float> &horizontal, const std::vector<float> &vertical,
                             std::int16_t type = kTypeC)
    {
        giveAngles(horizontal, vertical, type);
        tmrFlip().setInterval(std::chrono::hours(1));
        page().lsbStart();
        window->ShowPage(kCandelaPage);
        QCoreApplication::processEvents();
    }

    void flip()
    {
        ASSERT_TRUE(tmrFlip().isActive());
        tmrFlip().setInterval(0);
        ASSERT_TRUE(waitForFlip());
    }

    CandelaPage &page() { return *find<CandelaPage>("nfra4"); }
    GridView &grid() { return *find<GridView>("cdaGridCd"); }

    std::string cell(int row, int column) { return at(row, column).data().toString().toStdString(); }
    QModelIndex at(int row, int column) { return grid().model()->index(row - 1, column); }
    QRect rect(int row, int column) { return grid().visualRect(at(row, column)); }

    std::string current() { return std::to_string(grid().currentRow()) + "," + std::to_string(grid().currentColumn()); }

    /// Types a value into a cell and commits it with Enter.
    void enterValue(int row, int column, const std::string &text)
    {
        grid().goTo(row, column);
        typeText(text);
        press(Qt::Key_Return);
        QCoreApplication::processEvents();
    }

    void paste(const std::string &text)
    {
        QGuiApplication::clipboard()->setText(QString::fromStdString(text));
        press(Qt::Key_V, Qt::ControlModifier);
        QCoreApplication::processEvents();
    }

    static std::string clipboard() { return QGuiApplication::clipboard()->text().toStdString(); }

    /// The plane and the cone that are shown, and whether the picture is of them: "22.5 / 60".
    std::string planes()
    {
        const std::string vertical = text("rtbVert");
        const std::string horizontal = text("rtbHorz");
        const std::string drawn = find("picCda")->accessibleDescription().toStdString();
        const bool isDrawn = drawn.find("through horizontal angle " + vertical + ":") != std::string::npos;
        return vertical + " / " + horizontal + (isDrawn ? "" : ", not drawn: " + drawn);
    }

    std::string drawn() { return find("picCda")->accessibleDescription().toStdString(); }

    QTimer &tmrFlip() { return *window->findChild<QTimer *>("tmrFlip", Qt::FindDirectChildrenOnly); }
    bool waitForFlip()
    {
        return QTest::qWaitFor([this] { return !tmrFlip().isActive(); }, 60'000);
    }

    /// `count` angles from 0 on in equal steps.
    static std::vector<float> angles(int count, float step)
    {
        std::vector<float> list;
        for (int i = 0; i < count; ++i)
            list.push_back(step * static_cast<float>(i));
        return list;
    }
};

}  // namespace penwright::test
