// Files of the disk while they are opened.
#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include "core/IesText.h"
#include "host/BoxText.h"
#include "hostbench/FilePanel.h"
#include "hostbench/SampleLuminaire.h"
#include "platform/TextFiles.h"
#include "support/SpinUntil.h"

namespace penwright::test {
namespace {

using namespace std::chrono_literals;

/// A disk that holds up each file until it is let go.
class HeldUpFiles : public TextFiles {
public:
    int replace(const std::string &, std::string_view) override { return EROFS; }

    FileContent read(const std::string &path, std::size_t, const std::function<bool(double)> &goOn) override
    {
        std::unique_lock lock(m_mutex);
        ++m_begun;
        while (!m_isLetGo && goOn(0.5))
            m_changed.wait_for(lock, 1ms);
        ++m_ended;
        if (!goOn(0.5))
            return {ECANCELED, {}};
        return m_contents.count(path) ? m_contents.at(path) : FileContent{ENOENT, {}};
    }

    void letGo()
    {
        const std::lock_guard lock(m_mutex);
        m_isLetGo = true;
        m_changed.notify_all();
    }

    void holdUp()
    {
        const std::lock_guard lock(m_mutex);
        m_isLetGo = false;
    }

    void hold(const std::string &path, const FileContent &content)
    {
        const std::lock_guard lock(m_mutex);
        m_contents[path] = content;
    }

    int begun() const { return m_begun; }
    int ended() const { return m_ended; }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isLetGo = false;
    std::map<std::string, FileContent> m_contents;
    std::atomic<int> m_begun = 0;
    std::atomic<int> m_ended = 0;
};

class FileOpeningTest : public testing::Test {
protected:
    FileOpeningTest()
    {
        for (const char *name : {"/lum/a.ies", "/lum/b.ies", "/lum/c.ies"})
            m_disk->hold(name, {0, iesFileText(sampleLuminaire())});
        m_panel->show();
    }

    template <typename Widget>
    Widget *find(const char *name) const
    {
        return m_panel->findChild<Widget *>(name);
    }

    QProgressBar *progress() const { return find<QProgressBar>("openingProgress"); }
    bool waitForCount(int count) const
    {
        return spinUntil([&] { return m_files.count() == count; });
    }
    bool waitForProgress() const
    {
        return spinUntil([&] { return progress()->isVisible(); });
    }

    HeldFiles m_files;
    std::shared_ptr<HeldUpFiles> m_disk = std::make_shared<HeldUpFiles>();
    std::unique_ptr<FilePanel> m_panel = std::make_unique<FilePanel>(m_files, m_disk);
};

TEST_F(FileOpeningTest, showsProgressWhileTheWindowLives)
{
    m_panel->open({"/lum/a.ies"});
    EXPECT_FALSE(progress()->isVisible());
    EXPECT_EQ(m_files.count(), 0);
    ASSERT_TRUE(waitForProgress());
    EXPECT_EQ(progress()->accessibleName(), "Reading a.ies");
    EXPECT_EQ(progress()->value(), 50);
    EXPECT_TRUE(find<QPushButton>("openFiles")->isEnabled());
    m_disk->letGo();
    ASSERT_TRUE(waitForCount(1));
    EXPECT_TRUE(spinUntil([&] { return !progress()->isVisible(); }));
    EXPECT_EQ(m_panel->selected(), 0);
}

TEST_F(FileOpeningTest, cancelKeepsWhatIsReadAndDropsWhatWaits)
{
    m_disk->letGo();
    m_panel->open({"/lum/a.ies"});
    ASSERT_TRUE(waitForCount(1));
    m_disk->holdUp();
    m_panel->open({"/lum/b.ies", "/lum/c.ies"});
    ASSERT_TRUE(waitForProgress());
    QTest::mouseClick(find<QPushButton>("cancelOpening"), Qt::LeftButton);
    EXPECT_FALSE(progress()->isVisible());
    EXPECT_TRUE(spinUntil([&] { return m_disk->ended() == 2; }));
    QTest::qWait(20);
    EXPECT_EQ(m_files.count(), 1);
    EXPECT_EQ(m_disk->begun(), 2);
}

TEST_F(FileOpeningTest, escapeCancelsAndTheListHasTheKeyboard)
{
    QApplication::setActiveWindow(m_panel.get());
    m_panel->open({"/lum/a.ies"});
    ASSERT_TRUE(waitForProgress());
    find<QPushButton>("cancelOpening")->setFocus();
    QTest::keyClick(m_panel.get(), Qt::Key_Escape);
    EXPECT_TRUE(spinUntil([&] { return !progress()->isVisible(); }));
    EXPECT_TRUE(find<QListWidget>("fileList")->hasFocus());
}

TEST_F(FileOpeningTest, filesAskedForMeanwhileComeBehindTheOthers)
{
    m_panel->open({"/lum/b.ies"});
    m_panel->open({"/lum/a.ies", "/lum/c.ies"});
    m_disk->letGo();
    ASSERT_TRUE(waitForCount(3));
    EXPECT_EQ(m_files.at(0).record.Filename, "/lum/b.ies");
    EXPECT_EQ(m_files.at(1).record.Filename, "/lum/a.ies");
    EXPECT_EQ(m_panel->selected(), 2);
}

TEST_F(FileOpeningTest, onesThatVanishOrChangeAreToldOnceAllAreRead)
{
    m_disk->hold("/lum/b.ies", {ESTALE, {}});
    m_panel->open({"/lum/gone.ies", "/lum/b.ies", "/lum/c.ies"});
    EXPECT_EQ(boxTextOf([&] { m_disk->letGo(); }),
              "gone.ies was not opened: There is no such file.\n"
              "b.ies was not opened: The file was changed while it was read.");
    EXPECT_EQ(m_files.count(), 1);
}

TEST_F(FileOpeningTest, endsWithThePanel)
{
    m_panel->open({"/lum/a.ies", "/lum/b.ies"});
    ASSERT_TRUE(spinUntil([&] { return m_disk->begun() == 1; }));
    m_panel.reset();
    EXPECT_TRUE(spinUntil([&] { return m_disk->ended() == 1; }));
    QTest::qWait(20);
    EXPECT_EQ(m_files.count(), 0);
}

}  // namespace
}  // namespace penwright::test
