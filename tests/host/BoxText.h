#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <QMessageBox>
#include <QTest>

#include "support/DialogDriver.h"

namespace penwright::test {

/// Acts, and closes the box that comes of it; its text.
inline QString boxTextOf(const std::function<void()> &act)
{
    QString text;
    whenDialogIsUp([&](QDialog &dialog) {
        text = dynamic_cast<QMessageBox &>(dialog).text();
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    act();
    EXPECT_TRUE(spinUntil([&] { return !text.isEmpty(); }));
    return text;
}

}  // namespace penwright::test
