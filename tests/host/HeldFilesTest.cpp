#include "hostbench/HeldFiles.h"

#include <gtest/gtest.h>

namespace penwright {
namespace {

HeldFile file(const std::string &name, bool isSaved, float watts = 0)
{
    PhotometricRecord record;
    record.Filename = name;
    record.InputWatts = watts;
    return {record, isSaved, {}};
}

TEST(HeldFiles, theTwentySixthIsNotAdded)
{
    HeldFiles files;
    for (int i = 0; i < 25; ++i)
        EXPECT_EQ(files.add(file(std::to_string(i), true)), i);
    EXPECT_TRUE(files.isFull());
    EXPECT_EQ(files.add(file("one more", true)), -1);
    EXPECT_EQ(files.count(), 25);
}

TEST(HeldFiles, oneThatNeedNotBeHeldLeavesRoomForWhatWizardsBring)
{
    HeldFiles files;
    for (int place = 0; place < 23; ++place)
        EXPECT_EQ(files.addBesides({}, 2), place);
    EXPECT_EQ(files.addBesides({}, 2), -1);
    EXPECT_EQ(files.add({}), 23);
    EXPECT_EQ(files.addBesides({}, 1), -1);
    EXPECT_EQ(files.add({}), 24);
}

TEST(HeldFiles, aSavedFileReplacesTheOneOfItsName)
{
    HeldFiles files;
    files.add(file("/a.ies", true, 1));
    files.add(file("/b.ies", true, 2));
    EXPECT_EQ(files.add(file("/a.ies", true, 3)), 0);
    EXPECT_EQ(files.count(), 2);
    EXPECT_EQ(files.at(0).record.InputWatts, 3);
}

TEST(HeldFiles, anUnnamedFileReplacesNone)
{
    HeldFiles files;
    files.add(file("new_file_1", false, 1));
    EXPECT_EQ(files.add(file("new_file_1", false, 2)), 1);
    EXPECT_EQ(files.at(0).record.InputWatts, 1);
}

TEST(HeldFiles, aSavedFileIsReplacedEvenWhenTheListIsFull)
{
    HeldFiles files;
    for (int i = 0; i < 25; ++i)
        files.add(file(std::to_string(i), true));
    EXPECT_EQ(files.add(file("7", true, 5)), 7);
}

TEST(HeldFiles, countsThoseThatAreNotSaved)
{
    HeldFiles files;
    EXPECT_EQ(files.unsavedCount(), 0);
    files.add(file("a", true));
    files.add(file("new_file_1", false));
    files.add(file("new_file_2", false));
    EXPECT_EQ(files.unsavedCount(), 2);
    files.setSaved(1, "b");
    EXPECT_EQ(files.unsavedCount(), 1);
}

TEST(HeldFiles, savingGivesTheName)
{
    HeldFiles files;
    files.add(file("new_file_1", false));
    files.setSaved(0, "/tmp/a.ies");
    EXPECT_TRUE(files.at(0).isSaved);
    EXPECT_EQ(files.at(0).record.Filename, "/tmp/a.ies");
}

}  // namespace
}  // namespace penwright
