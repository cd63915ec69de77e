#pragma once

#include <string>

#include "draft/PageValue.h"
#include "widgets/WizardTest.h"

namespace penwright::test {

/// What a page holds, made into texts.
inline PageText textsOf(const PageValue &value)
{
    PageText texts;
    for (const HeldText &held : value)
        texts.emplace(held.name, held.text());
    return texts;
}
inline PageText textsOf(const PageFrame &page)
{
    return textsOf(page.value());
}

}  // namespace penwright::test
