#pragma once

#include <QCoreApplication>

#include "pages/candela/CandelaGrid.h"
#include "pages/candela/CandelaPage.h"
#include "platform/qt/Closing.h"
#include "SquareRecord.h"
#include "support/FakeDialogs.h"
#include "wizard/WarningDialog.h"

namespace penwright {

inline constexpr int kSide = 1000;

/// Page 5 for a square table in a window of its own, as large as an embedded one.
class ShownPage {
public:
    explicit ShownPage(int side = kSide)
    {
        m_state.PhotFiles.reset(1);
        setSquareAngles(m_state.PhotFiles(1), side);
        page.resize(1000, 700);
        page.show();
        QCoreApplication::processEvents();
    }

    void open()
    {
        page.lsbStart();
        QCoreApplication::processEvents();
    }

    CandelaGrid *grid() { return page.findChild<CandelaGrid *>("cdaGridCd"); }

private:
    struct Nowhere : Navigator {
        void ShowPage(int) override {}
        void ConfirmCancel() override {}
        void ShowHelp(int) override {}
        void showHelpAt(const std::string &) override {}
        void goToPlace(const RecordPlace &) override {}
        bool ReDo() override { return false; }
        bool isBusy() const override { return false; }
    };

    ToolState m_state;
    Closing m_closing;
    test::FakeDialogs m_dialogs;
    Nowhere m_navigator;
    WarningDialog m_dlgWarn{m_closing, nullptr};

public:
    CandelaPage page{PageContext{m_state, m_dialogs, m_navigator, m_dlgWarn}};
};

}  // namespace penwright
