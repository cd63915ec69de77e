#pragma once

#include "widgets/WizardTest.h"

namespace penwright::test {

/// The name that a screen reader says of an object.
inline std::string nameOf(const QAccessibleInterface &object)
{
    return object.text(QAccessible::Name).toStdString();
}

/// A wizard whose pages have all the controls and cells that there are to be read.
class ReadWizard : public WizardTest {
protected:
    void SetUp() override
    {
        startWizard();
        fillPageTwo();
        fillPageFour();
    }
};

}  // namespace penwright::test
