#include "pages/luminaire/TiltPage.h"

namespace penwright {

TiltPage::TiltPage(const PageContext &context) : PageFrame(kTiltPage, context)
{
    showValuesComeFromHost();
    addButtons([this] { cmdNext15_Click(); }, [this] { cmdBack15_Click(); });
}

void TiltPage::cmdNext15_Click()
{
    navigator().ShowPage(kKeywordPage);
}

void TiltPage::cmdBack15_Click()
{
    navigator().ShowPage(kLampPage);
}

}  // namespace penwright
