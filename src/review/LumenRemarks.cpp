#include "core/NumberText.h"
#include "review/RemarkRules.h"
#include "review/ShownNumber.h"

namespace penwright {
namespace {

/// The lumens of the table beside those of the lamps, where both are known.
struct LumenPair {
    double table = 0;
    double lamps = 0;
};

std::optional<LumenPair> lumenPair(const Reviewed &file)
{
    if (file.photometry.isAbsolute || !file.photometry.lumens.all.isKnown())
        return std::nullopt;
    return LumenPair{file.photometry.lumens.all.value(), file.photometry.lampLumens};
}

}  // namespace

void checkMoreThanLamps(const Reviewed &file, RuleRemarks &remarks)
{
    const auto lumens = lumenPair(file);
    if (!lumens)
        return;
    const double lamps = lumens->lamps * double{file.record.BallastFactor};
    if (lumens->table > 1.02 * lamps)
        remarks.add({RecordField::LumensPerLamp}, [&] {
            return "The table gives " + roundedText(lumens->table) + " lm, more than the lamps' " + roundedText(lamps) +
                   " lm: check lumens, lamps and multiplier.";
        });
}

// A table of zeros is in no unit. Below 300 lm, lamps of more than 1,500 lm fall under the second half anyway.
void checkPerKilolumen(const Reviewed &file, RuleRemarks &remarks)
{
    const auto lumens = lumenPair(file);
    if (!lumens || file.record.CandelaMultiplier != 1 || !(lumens->table > 0))
        return;
    const bool isNearAThousand = lumens->table <= 1010 && lumens->lamps > 1500;
    // The multiplier as it is typed, for the user types it; for lamps of a kilolumen it is the one there is.
    const std::string proposed = generalText(static_cast<float>(lumens->lamps / 1000));
    const bool isAnother = proposed != generalText(file.record.CandelaMultiplier);
    if (isAnother && (isNearAThousand || lumens->table < 0.3 * lumens->lamps))
        remarks.add({RecordField::CandelaMultiplier}, [&] {
            return "This looks like candela per kilolumen: should the multiplier be " + proposed + "?";
        });
}

void checkOddEfficacy(const Reviewed &file, RuleRemarks &remarks)
{
    const double watts = file.record.InputWatts;
    if (!(watts > 0) || !file.photometry.lumens.all.isKnown())
        return;
    const double efficacy = file.photometry.lumens.all.value() / watts;
    const bool isPerKilolumen = !file.photometry.isAbsolute && file.photometry.lampLumens == 1000;
    if (efficacy < (isPerKilolumen ? 50 : 10) || efficacy > 230)
        remarks.add({RecordField::InputWatts},
                    [&] { return roundedText(efficacy) + " lm/W is unusual: check watts, lumens and multiplier."; });
}

void checkFullEfficiency(const Reviewed &file, RuleRemarks &remarks)
{
    const auto lumens = lumenPair(file);
    if (!lumens || !(lumens->lamps > 0))
        return;
    const double efficiency = lumens->table / lumens->lamps;
    if (efficiency >= 0.98 && efficiency <= 1.01)
        remarks.add({RecordField::LumensPerLamp}, [&] {
            return "Efficiency is " + roundedText(100 * efficiency) +
                   " %: for a luminaire measured as a whole write -1 lumens.";
        });
}

void checkBallastTwice(const Reviewed &file, RuleRemarks &remarks)
{
    if (file.photometry.isAbsolute && file.record.BallastFactor != 1)
        remarks.add({RecordField::BallastFactor}, [&] {
            return "Absolute values already contain the ballast: write 1, not " +
                   typedText(double{file.record.BallastFactor}) + ".";
        });
}

}  // namespace penwright
