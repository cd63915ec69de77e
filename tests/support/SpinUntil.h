#pragma once

#include <QTest>

namespace penwright::test {

/// Lets the program run until `condition` answers true; false where it does not within a minute, which only a fault
/// takes, however busy the machine is.
template <typename Condition>
bool spinUntil(Condition condition)
{
    return QTest::qWaitFor(condition, 60'000);
}

}  // namespace penwright::test
