#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <QApplication>
#include <QClipboard>
#include <QTest>

#include "hostbench/LuminaireTyper.h"
#include "hostbench/SampleLuminaire.h"
#include "hostbench/XDisplay.h"
#include "support/Process.h"
#include "support/TempFolder.h"

namespace penwright::test {

/// The page's code: each block is named by a comment before it, "<!-- file: NAME -->".
inline std::string guideBlock(const std::string &name)
{
    const std::string page = contentOf(GUIDE);
    const auto mark = page.find("<!-- file: " + name + " -->\n```");
    if (mark == std::string::npos)
        throw std::runtime_error("the page has no block " + name);
    const auto start = page.find('\n', page.find("```", mark)) + 1;
    return page.substr(start, page.find("```", start) - start);
}

/// Blocks of the page in a folder of their own, with settings of their own, and a user at the keyboard.
class Guide : public testing::Test {
protected:
    Guide()
    {
        qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(m_folder.file("config")));
        qputenv("XDG_STATE_HOME", QByteArray::fromStdString(m_folder.file("state")));
    }

    std::string extract(const std::string &name)
    {
        std::ofstream(m_folder.file(name)) << guideBlock(name);
        return m_folder.file(name);
    }

    static bool waitFor(const std::function<bool()> &condition) { return QTest::qWaitFor(condition, 30'000); }

    bool waitForPage(int page)
    {
        return waitFor([&] { return m_display.focusedTitle() == LuminaireTyper::captionOf(page); });
    }

    /// Types a luminaire into pages 1 to `last` of the wizard that comes up, and leaves each by Next.
    bool fillPages(int last, const PhotometricRecord &luminaire = sampleLuminaire())
    {
        QGuiApplication::clipboard()->setText(LuminaireTyper::candelaTable(luminaire));
        for (int page = 1; page <= last; ++page) {
            if (!waitForPage(page))
                return false;
            LuminaireTyper(m_display, luminaire).typePage(page);
            pressNext();
        }
        return waitForPage(last + 1);
    }

    void pressNext() { m_display.pressKey('n', kKeyAlt); }

    /// Types a whole luminaire into the wizard that comes up, and finishes it unnamed.
    bool finishLuminaire() { return fillPages(5) && m_display.pressKey(kKeySpace); }

    /// Waits for a process that prints little, while this one answers for its clipboard.
    static std::optional<int> endOf(Process &process)
    {
        waitFor([&] { return process.hasEnded(); });
        return process.waitForEnd(0ms);
    }

    TempFolder m_folder;
    XDisplay m_display;
};

}  // namespace penwright::test
