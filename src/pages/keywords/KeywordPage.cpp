#include "pages/keywords/KeywordPage.h"

namespace penwright {

KeywordPage::KeywordPage(const PageContext &context) : PageFrame(kKeywordPage, context)
{
    showValuesComeFromHost();
    addButtons([this] { cmdNext20_Click(); }, [this] { cmdBack20_Click(); });
}

void KeywordPage::cmdNext20_Click()
{
    navigator().ShowPage(kDistributionPage);
}

void KeywordPage::cmdBack20_Click()
{
    navigator().ShowPage(state().PhotFiles(1).TiltIncl ? kTiltPage : kLampPage);
}

}  // namespace penwright
