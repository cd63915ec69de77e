#pragma once

#include "hostbench/HostWindow.h"

#include <gtest/gtest.h>

#include <memory>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include "support/DialogDriver.h"
#include "support/ReadBackFolder.h"

/// Texts in failures are printed to be read.
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << qPrintable(text) << '"';
}

namespace penwright::test {

/// The host's window with tools that are told what to do, over a store of its own.
class HostWindowTest : public testing::Test {
protected:
    HostWindowTest()
    {
        for (const char *name : {"XDG_CONFIG_HOME", "XDG_STATE_HOME"})
            qputenv(name, QByteArray::fromStdString(m_folder.path().string()));
        qputenv("FAKE_TOOL_LOG", QByteArray::fromStdString(m_folder.file("log")));
        behave("wait");
        m_store = std::make_unique<HostStore>();
        open(FAKE_TOOL);
    }

    void open(const QString &program)
    {
        m_window = std::make_unique<HostWindow>(*m_store, program);
        m_window->show();
    }

    static void behave(const QByteArray &behaviour) { qputenv("FAKE_TOOL", behaviour); }

    /// What the tools have noted so far: their command lines and the commands they took.
    QStringList noted() const
    {
        if (!std::filesystem::exists(m_folder.file("log")))
            return {};
        return QString::fromStdString(contentOf(m_folder.file("log"))).split('\n', Qt::SkipEmptyParts);
    }

    bool waitNoted(const QString &line) const
    {
        return QTest::qWaitFor([&] { return noted().contains(line); }, 20'000);
    }

    bool waitForNoTools() const
    {
        return QTest::qWaitFor([&] { return m_window->toolCount() == 0; }, 20'000);
    }

    /// Presses a button of the message box that comes next, and compares its text.
    static void answer(const QString &question, const QString &button)
    {
        whenDialogIsUp([=](QDialog &dialog) {
            auto &box = dynamic_cast<QMessageBox &>(dialog);
            EXPECT_EQ(box.text(), question);
            EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::Cancel));
            for (QAbstractButton *each : box.buttons()) {
                if (each->text().remove('&') == button)
                    QTest::mouseClick(each, Qt::LeftButton);
            }
        });
    }

    QPushButton *button(const char *name) const { return m_window->findChild<QPushButton *>(name); }

    /// Unfolds the log if a small screen has folded it.
    void openLog() const
    {
        if (!m_window->findChild<QTreeWidget *>("linkLog")->isVisible())
            m_window->findChild<QToolButton *>("foldLog")->click();
    }

    QStringList logged() const
    {
        QStringList texts;
        const auto *log = m_window->findChild<QTreeWidget *>("linkLog");
        for (int i = 0; i < log->topLevelItemCount(); ++i)
            texts.append(log->topLevelItem(i)->text(3));
        return texts;
    }

    ReadBackFolder m_folder;
    std::unique_ptr<HostStore> m_store;
    std::unique_ptr<HostWindow> m_window;
};

}  // namespace penwright::test
