#pragma once

#include <memory>

#include "wizard/FinishAndSave.h"
#include "wizard/PageFrame.h"

namespace Ui {
class FinishPage;
}

namespace penwright {

/// Page 6: shows what the new file says, and hands it to the host, unnamed or saved under a chosen name. The page stays
/// until the host closes the tool. What it shows is no value of its own and blocks nothing.
class FinishPage : public PageFrame {
    Q_OBJECT

public:
    /// `fileTaken` runs when the host has taken the finished file.
    FinishPage(const PageContext &context, SettingsStore &store, TextFiles &files, EventWait &wait, Handler fileTaken);
    ~FinishPage() override;

    /// Reviews the record as it is now.
    void enter() override;
    bool followRecord() override;

protected:
    /// What the page has told of the host is over with when the page is left.
    void hideEvent(QHideEvent *event) override;

private:
    void cmdUnname_Click();
    void cmdSaveAs_Click();
    void cmdBack80_Click();

    void finish(bool saveAs);
    void showStatus(const QString &text);

    std::unique_ptr<Ui::FinishPage> m_form;
    FinishAndSave m_finish;
    Handler m_fileTaken;
};

}  // namespace penwright
