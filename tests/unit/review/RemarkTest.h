#pragma once

#include <ostream>

#include "review/Remarks.h"
#include "ReviewTest.h"

namespace penwright::test {

// First lines as the keyword page stores them.
inline const std::string kVersion2002 = "IESNA:LM-63-2002 ";
inline const std::string kVersion1995 = "IESNA:LM-63-1995 ";
inline const std::string kVersion1991 = "IESNA91 ";

/// Changes one thing of a record that nothing is remarked on.
using Change = std::function<void(PhotometricRecord &)>;

/// A luminaire of 7,854 lm, quadrants, downwards only, that nothing is remarked on.
inline PhotometricRecord goodRecord()
{
    return withTable(plainRecord(), kTypeC, anglesTo(90, 22.5F), anglesTo(90, 5),
                     [](double, double v) { return 2500 * cosine(v); });
}

inline std::vector<Remark> remarksOf(const PhotometricRecord &record)
{
    return penwright::remarksOf(record, photometryOf(record));
}

inline std::vector<std::string> textsOf(const std::vector<Remark> &remarks)
{
    std::vector<std::string> texts;
    for (const Remark &remark : remarks)
        texts.push_back(remark.text);
    return texts;
}

/// Makes the table give so many lumens.
inline void setLumens(PhotometricRecord &record, double lumens)
{
    const double scale = lumens / photometryOf(record).lumens.all.value();
    for (int h = 1; h <= record.NumHorzAngles; ++h)
        for (int v = 1; v <= record.NumVertAngles; ++v)
            record.Candela(h, v) *= scale;
}

/// One change and what one rule says of it: a text and its place for each remark, nothing when it is silent.
struct RuleCase {
    std::string name;
    RemarkRule rule;
    Change change;
    std::vector<std::pair<std::string, RecordPlace>> remarks;
};

inline void PrintTo(const RuleCase &given, std::ostream *out)
{
    *out << given.name;
}

/// Holds the remarks of one rule on the changed record against those that are given.
inline void expectRemarks(const RuleCase &given)
{
    PhotometricRecord record = goodRecord();
    given.change(record);
    std::vector<Remark> expected;
    for (const auto &[text, place] : given.remarks)
        expected.push_back({given.rule, text, place});
    std::vector<Remark> found;
    for (const Remark &remark : remarksOf(record))
        if (remark.rule == given.rule)
            found.push_back(remark);
    EXPECT_EQ(textsOf(found), textsOf(expected));
    EXPECT_TRUE(found == expected) << "another place";
}

}  // namespace penwright::test
