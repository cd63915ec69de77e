#pragma once

#include <memory>

#include "pages/keywords/KeywordRows.h"
#include "wizard/PageFrame.h"

namespace Ui {
class KeywordPage;
}

namespace penwright {

class SettingsStore;

/// Page 3: the keyword lines, the version line first. They begin with the user's defaults when the page is first shown;
/// later visits keep them. Back leads over the tilt page only when tilt is included.
class KeywordPage : public PageFrame {
    Q_OBJECT

public:
    KeywordPage(const PageContext &context, SettingsStore &store);
    ~KeywordPage() override;

    /// Loads the defaults, the first time; raises the errors of the store.
    void enter() override;
    std::string subject() const override;

    /// The text of a line, and for one that is missing the row that appends it.
    std::optional<FaultPlace> placeOf(const RecordPlace &place) const override;

protected:
    void focusFault(const FaultPlace &place) override;

private:
    void cmdDefaultLoad_Click();
    void cmdSaveDefaults_Click();
    void cmdNext20_Click();
    void cmdBack20_Click();

    void showLine();
    void showHint(const QString &hint);

    std::unique_ptr<Ui::KeywordPage> m_form;
    SettingsStore &m_store;
    const std::shared_ptr<KeywordRows> m_rows = std::make_shared<KeywordRows>();
    bool m_hasRows = false;
};

}  // namespace penwright
