#pragma once

#include <string>

#include "draft/PageValue.h"
#include "widgets/WizardTest.h"

namespace penwright::test {

/// What stands on a page, made into texts.
inline PageText textsOf(const PageFrame &page)
{
    PageText texts;
    for (const HeldText &held : page.value())
        texts.emplace(held.name, held.text());
    return texts;
}

}  // namespace penwright::test
