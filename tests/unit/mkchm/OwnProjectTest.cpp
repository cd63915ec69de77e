// The program's own help project, held against the pages that open it.
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "mkchm/HelpProject.h"
#include "support/TempFolder.h"
#include "wizard/PageTable.h"

namespace penwright::mkchm {
namespace {

TEST(OwnProject, hasATopicForEachPageAndNoOther)
{
    const HelpProject project = readProject(test::contentOf(HELP_FOLDER "/Lumentor_PE-HTML.hhp"));
    const std::array<std::string, kPageCount> topics{"lamp.html",   "tilt.html",    "keywords.html",
                                                     "angles.html", "candela.html", "finish.html"};
    std::map<std::uint32_t, std::string> expected;
    for (std::size_t page = 0; page < kPages.size(); ++page)
        expected[static_cast<std::uint32_t>(kPages[page].helpId)] = topics[page];
    EXPECT_EQ(project.topics, expected);
    EXPECT_EQ(expected.size(), kPages.size());
}

}  // namespace
}  // namespace penwright::mkchm
