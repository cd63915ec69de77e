#include <gtest/gtest.h>

#include "host/HostRun.h"
#include "support/ReadBackFolder.h"

namespace penwright {
namespace {

using test::Process;

struct LocaleCase {
    const char *name;
    const char *decimalSign;
};

void PrintTo(const LocaleCase &row, std::ostream *out)
{
    *out << row.name;
}

/// A whole luminaire typed in a country's own locale, which is made for the test.
class WalkLocaleTest : public testing::TestWithParam<LocaleCase> {
protected:
    void SetUp() override
    {
        const std::string made = m_home.file(name());
        Process({"localedef", "-i", GetParam().name, "-f", "UTF-8", made}).waitForEnd(std::chrono::seconds(60));
        ASSERT_EQ(Process({"locale", "decimal_point"}, settings()).readAll(),
                  std::string(GetParam().decimalSign) + "\n");
    }

    std::string name() const { return GetParam().name + std::string(".UTF-8"); }

    Process::Environment settings() const
    {
        return {{"LOCPATH", m_home.path().string()}, {"LC_ALL", name()}, {"LANG", name()}, {"LANGUAGE", name()}};
    }

    test::ReadBackFolder m_home;
};

TEST_P(WalkLocaleTest, givesTheSameFileAndRecord)
{
    const test::Screen screen(false);
    Process::Environment here = test::environment(screen.name(), m_home.path());
    for (const auto &setting : settings())
        here.push_back(setting);
    Process host({HOSTBENCH, "--walk", m_home.file("left")}, here, Process::Errors::Joined);
    const std::string output = host.readAll(std::chrono::seconds(90));
    EXPECT_EQ(host.waitForEnd(), 0) << output;  // the walk compares the record that came back over the store
    EXPECT_EQ(test::contentOf(m_home.file("left/luminaire.ies")), test::contentOf(EXPECTED_FILE));
}

INSTANTIATE_TEST_SUITE_P(Countries, WalkLocaleTest,
                         testing::Values(LocaleCase{"de_DE", ","}, LocaleCase{"fr_FR", ","}, LocaleCase{"ar_EG", "."},
                                         LocaleCase{"tr_TR", ","}),
                         [](const auto &row) { return std::string(row.param.name); });

}  // namespace
}  // namespace penwright
