#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidget>
#include <string>
#include <vector>

#include "help/chm/ChmHelpFile.h"
#include "help/window/HelpWindow.h"
#include "support/HelpSamples.h"

namespace penwright::test {

inline std::unique_ptr<HelpFile> helpOf(const std::vector<ChmObject> &objects)
{
    return readChm("/help/x.chm", mkchm::makeContainer(objects));
}

/// The help window on the sample file, found by the names of its controls.
class HelpWindowTest : public testing::Test {
protected:
    void open(std::unique_ptr<HelpFile> file, const HelpPlace &place)
    {
        window.setFile(std::move(file));
        window.showPlace(place);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window, 60'000));
        QApplication::setActiveWindow(&window);
    }
    void openSample() { open(readChm("/help/x.chm", sampleHelp()), {"first.html", ""}); }

    template <typename Widget = QWidget>
    Widget *find(const char *name)
    {
        auto *widget = window.findChild<Widget *>(name);
        if (!widget)
            throw std::runtime_error(std::string("no control ") + name);
        return widget;
    }
    QTextBrowser &page() { return *find<QTextBrowser>("wbrTopic"); }

    /// The heading of the page shown, its first line.
    std::string heading() { return page().toPlainText().section('\n', 0, 0).toStdString(); }

    std::string currentEntry()
    {
        const QTreeWidgetItem *item = find<QTreeWidget>("tvwContents")->currentItem();
        return item ? item->text(0).toStdString() : "none";
    }

    std::string found()
    {
        std::string titles;
        auto *list = find<QListWidget>("lstFound");
        for (int row = 0; row < list->count(); ++row)
            titles += (row == list->currentRow() ? "> " : "") + list->item(row)->text().toStdString() + "\n";
        return titles;
    }

    static std::string focusName()
    {
        const QWidget *focus = QApplication::focusWidget();
        return focus ? focus->objectName().toStdString() : "none";
    }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    static void type(const QString &text) { QTest::keyClicks(QApplication::focusWidget(), text); }

    HelpWindow window;
};

}  // namespace penwright::test
