#include "store/StoreTest.h"

namespace penwright::test {
namespace {

std::string namesAndData(const std::vector<Setting> &settings)
{
    std::string text;
    for (const Setting &setting : settings)
        text += setting.name + "=" + setting.data + ";";
    return text;
}

using ValueTest = StoreTest;

TEST_F(ValueTest, missingValueReadsAsTheFallback)
{
    EXPECT_EQ(store().read("a", "s", "n", "fallback"), "fallback");
    EXPECT_EQ(store().read("a", "s", "n"), "");
    store().write("a", "s", "n", "");
    EXPECT_EQ(store().read("a", "s", "n", "fallback"), "");
}

TEST_F(ValueTest, namesCompareExactly)
{
    store().write("App", "Sec", "Name", "x");
    for (const auto &[application, section, name] :
         {std::array{"app", "Sec", "Name"}, std::array{"App", "SEC", "Name"}, std::array{"App", "Sec", "name"},
          std::array{"App", "Sec", "Name "}, std::array{"", "Sec", "Name"}})
        EXPECT_EQ(store().read(application, section, name, "(none)"), "(none)");
}

TEST_F(ValueTest, sectionIsReadInTheOrderOfWritingAndOverwritingKeepsThePlace)
{
    for (const char *name : {"c", "a", "b"})
        write(name, "1");
    store().write("Lumentor_PE", "Other", "x", "1");
    write("a", "2");
    EXPECT_EQ(namesAndData(store().readAll("Lumentor_PE", "Sec")), "c=1;a=2;b=1;");
    store().remove("Lumentor_PE", "Sec", "c");
    write("c", "3");
    EXPECT_EQ(namesAndData(store().readAll("Lumentor_PE", "Sec")), "a=2;b=1;c=3;");
}

TEST_F(ValueTest, removingWhatIsNotThereIsNoError)
{
    store().remove("a", "s", "n");
    store().removeSection("a", "s");
}

TEST_F(ValueTest, removingASectionLeavesTheOthers)
{
    write("a", "1");
    store().write("Lumentor_PE", "Other", "b", "2");
    store().write("Lumentor32", "Sec", "c", "3");
    store().removeSection("Lumentor_PE", "Sec");
    EXPECT_EQ(namesAndData(store().readAll("Lumentor_PE", "Sec")), "");
    EXPECT_EQ(namesAndData(store().readAll("Lumentor_PE", "Other")), "b=2;");
    EXPECT_EQ(namesAndData(store().readAll("Lumentor32", "Sec")), "c=3;");
}

TEST_F(ValueTest, sectionsAreListedInTheOrderOfTheirFirstValues)
{
    EXPECT_EQ(store().sections("Lumentor_PE"), std::vector<std::string>{});
    store().write("Lumentor_PE", "b", "n", "1");
    store().write("Lumentor_PE", "a", "n", "2");
    store().write("Lumentor_PE", "b", "m", "3");
    store().write("Lumentor32", "c", "n", "4");
    EXPECT_EQ(store().sections("Lumentor_PE"), (std::vector<std::string>{"b", "a"}));
    store().removeSection("Lumentor_PE", "b");
    EXPECT_EQ(store().sections("Lumentor_PE"), std::vector<std::string>{"a"});
}

class AnyBytes : public StoreTest, public testing::WithParamInterface<std::string> {};

TEST_P(AnyBytes, passUnharmed)
{
    write("value", GetParam());
    EXPECT_TRUE(read("value") == GetParam());
    EXPECT_TRUE(peek("value") == GetParam());
    closeStore();
    EXPECT_TRUE(pop("value") == GetParam());
    EXPECT_EQ(read("value"), "");
}

INSTANTIATE_TEST_SUITE_P(Values, AnyBytes,
                         testing::Values(std::string("a\0b\0", 4), std::string("\0", 1), "\xff\xfe\x80", "\xc3\xa4",
                                         "'; DROP TABLE setting; --", "a\r\nb\n", std::string(10'000'000, '\xee')));

TEST_F(ValueTest, namesMayHoldAnyBytesToo)
{
    const std::string name("n\0\xff'", 4);
    store().write(name, name, name, "x");
    EXPECT_EQ(store().read(name, name, name), "x");
    EXPECT_EQ(store().read(name, name, "n", "(none)"), "(none)");
}

TEST_F(ValueTest, cellThatAHostWroteAsBlobOrNumberReadsAsItsBytes)
{
    store();
    Peer peer(path);
    peer.sql(
        "INSERT INTO setting (application, section, name, data) VALUES "
        "('Lumentor_PE', 'Sec', 'blob', x'00ff41'), ('Lumentor_PE', 'Sec', 'number', 12.5)");
    EXPECT_EQ(read("blob"), std::string("\0\xff\x41", 3));
    EXPECT_EQ(read("number"), "12.5");
    EXPECT_EQ(pop("blob"), std::string("\0\xff\x41", 3));
}

TEST_F(ValueTest, failedTransactionIsUndone)
{
    write("a", "before");
    EXPECT_EQ(errorOf([this] {
                  store().transact([this] {
                      write("a", "half");
                      write("b", "half");
                      throw overflow();
                  });
              }),
              "6\nOverflow");
    EXPECT_EQ(read("a"), "before");
    EXPECT_EQ(read("b"), "(none)");
    write("a", "after");
    EXPECT_EQ(read("a"), "after");
}

TEST_F(ValueTest, transactionWithinAnotherIsPartOfIt)
{
    EXPECT_NE(errorOf([this] {
                  store().transact([this] {
                      store().transact([this] { write("a", "inner"); });
                      EXPECT_EQ(read("a"), "inner");
                      throw overflow();
                  });
              }),
              "no error");
    EXPECT_EQ(read("a"), "(none)");
}

}  // namespace
}  // namespace penwright::test
