#include "pages/distribution/DistributionPage.h"

namespace penwright {

DistributionPage::DistributionPage(const PageContext &context) : PageFrame(kDistributionPage, context)
{
    showValuesComeFromHost();
    addButtons([this] { cmdNext30_Click(); }, [this] { cmdBack30_Click(); });
}

void DistributionPage::cmdNext30_Click()
{
    navigator().ShowPage(kCandelaPage);
}

void DistributionPage::cmdBack30_Click()
{
    navigator().ShowPage(kKeywordPage);
}

}  // namespace penwright
