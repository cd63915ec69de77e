// Writes files as the program writes them into a folder, each with its record beside it in JSON, for `compare.mjs`.
//   reader_samples FOLDER
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "core/IesText.h"
#include "pages/luminaire/LuminousShapes.h"
#include "support/ReadBack.h"
#include "support/SampleRecords.h"

namespace {

using namespace penwright;

struct Sample {
    std::string name;
    PhotometricRecord record;
};

/// A number with all its digits, by another way than the program's own.
std::string json(double number)
{
    char text[40];
    std::snprintf(text, sizeof text, "%.17g", number);
    return text;
}

std::string json(const std::string &text)
{
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\')
            quoted += '\\';
        quoted += c;
    }
    return quoted + '"';
}

template <typename List>
std::string jsonList(const List &list)
{
    std::string text;
    for (const auto &element : list)
        text += (text.empty() ? "" : ",") + json(element);
    return "[" + text + "]";
}

std::string json(const PhotometricRecord &record)
{
    std::string rows;
    for (int h = 1; h <= record.NumHorzAngles; ++h)
        rows += (h > 1 ? "," : "") + jsonList(record.Candela.row(h));
    std::string text = "{\"keywords\":" + jsonList(record.Keywords) + ",\"tilt\":" + (record.TiltIncl ? "1" : "0");
    const std::pair<const char *, double> numbers[]{
        {"lamps", record.NumLamps},       {"lumens", record.LumensPerLamp}, {"multiplier", record.CandelaMultiplier},
        {"type", record.PhotometricType}, {"units", record.UnitsType},      {"width", record.Width},
        {"length", record.Length},        {"height", record.Height},        {"ballast", record.BallastFactor},
        {"watts", record.InputWatts}};
    for (const auto &[name, number] : numbers)
        text.append(",\"").append(name).append("\":").append(json(number));
    return text + ",\"vertical\":" + jsonList(record.VertAngles) + ",\"horizontal\":" + jsonList(record.HorAngles) +
           ",\"candela\":[" + rows + "]}";
}

/// Light that falls with the vertical angle and differs from plane to plane, the same in all of them at 0 and 180.
/// Whole numbers, so that a row of 19 is not folded.
double lobe(const PhotometricRecord &record, int h, int v)
{
    const double angle = record.VertAngles(v);
    return std::round(1000 - 5 * angle + angle * (180 - angle) / 8100 * (h % 50 * 10 + v % 7));
}

PhotometricRecord plain(int vertical, int horizontal, float last = 360)
{
    PhotometricRecord record = test::smallRecord();
    test::setAngles(record, kTypeC, horizontal > 1 ? test::evenAngles(horizontal, last) : std::vector<float>{0},
                    test::evenAngles(vertical, 180));
    test::setCandela(record, [&record](int h, int v) { return static_cast<float>(lobe(record, h, v)); });
    return record;
}

std::vector<Sample> headers()
{
    std::vector<Sample> samples;
    for (const char *line :
         {"IESNA91", "IESNA:LM-63-1995", "IESNA:LM-63-2002", "IESNA:LM-63-2002 ", "[TEST] oldest", "IES:LM-63-2019"}) {
        PhotometricRecord record = plain(19, 5);
        record.Keywords(1) = line;
        samples.push_back({"header " + std::to_string(samples.size()), record});
    }
    PhotometricRecord utf8 = plain(19, 5);
    utf8.Keywords = {"IESNA:LM-63-2002", "[TEST] \xC3\xA4\xC2\xB0", "[MANUFAC] \xE6\x97\xA5\xE6\x9C\xAC", ""};
    samples.push_back({"utf-8", utf8});
    PhotometricRecord longLine = plain(19, 5);
    longLine.Keywords.append("[OTHER] " + std::string(300, 'x'));
    samples.push_back({"long keyword line", longLine});
    return samples;
}

std::vector<Sample> tilts()
{
    PhotometricRecord tilt = plain(19, 5);
    tilt.TiltIncl = true;
    tilt.LampToLuminaireGeometry = 1;
    tilt.NumTiltAngles = 3;
    tilt.TiltAngles = {0, 45, 90};
    tilt.TiltMultipliers = {1, 0.95F, 0.9F};
    PhotometricRecord empty = tilt;
    empty.NumTiltAngles = 0;
    empty.TiltAngles.clear();
    empty.TiltMultipliers.clear();
    PhotometricRecord folded = tilt;
    folded.NumTiltAngles = 91;
    folded.TiltAngles.clear();
    folded.TiltMultipliers.clear();
    for (int i = 0; i <= 90; ++i) {
        folded.TiltAngles.append(static_cast<float>(i));
        folded.TiltMultipliers.append(1 - static_cast<float>(i) / 1000);
    }
    return {{"tilt", tilt}, {"tilt without angles", empty}, {"tilt folded", folded}};
}

std::vector<Sample> shapes()
{
    std::vector<Sample> samples;
    for (int shape = 0; shape < static_cast<int>(kShapeCount); ++shape) {
        PhotometricRecord record = plain(19, 5);
        const Dimensions stored = storedDimensions(shape, {0.5F, 1.25F, 0.25F});
        record.Width = stored.width;
        record.Length = stored.length;
        record.Height = stored.height;
        record.UnitsType = shape % 2 ? kMeters : kFeet;
        samples.push_back({"shape " + std::to_string(shape), record});
    }
    return samples;
}

/// Rows whose numbers end at every place around the widths of a line.
std::vector<Sample> folds()
{
    std::vector<Sample> samples;
    for (const char *line : {"IESNA:LM-63-1995", "IESNA:LM-63-2002"})
        for (int digits = 1; digits <= 6; ++digits) {
            PhotometricRecord record = plain(181, 3, 180);
            record.Keywords(1) = line;
            const int least = std::stoi("1" + std::string(static_cast<std::size_t>(digits - 1), '0'));
            test::setCandela(record, [least, digits](int h, int v) {
                return v == 1 || v == 181 ? least : least + (digits > 1 ? (7 * v + h) % (least * 9) : v % 9);
            });
            samples.push_back({"fold " + std::string(line) + " " + std::to_string(digits), record});
        }
    return samples;
}

std::vector<Sample> numbers()
{
    PhotometricRecord exponents = plain(19, 1);
    test::setCandela(exponents, [](int, int v) { return v % 3 == 0 ? 1.5E-5F : v % 3 == 1 ? 2.5E+16F : 1E+16F; });
    PhotometricRecord tails = plain(19, 5);
    test::setCandela(tails,
                     [](int h, int v) { return v == 1 || v == 19 ? 12.3F : 12.3F + static_cast<float>(h * v) / 7; });
    PhotometricRecord factors = plain(19, 5);
    factors.LumensPerLamp = -1;
    factors.CandelaMultiplier = 1.25F;
    factors.BallastFactor = 0.875F;
    factors.NumLamps = 3;
    return {{"exponents", exponents}, {"long decimal tails", tails}, {"factors", factors}};
}

std::vector<Sample> angles()
{
    PhotometricRecord many = plain(1000, 3, 180);
    PhotometricRecord planes = plain(19, 1000);
    PhotometricRecord uneven = test::smallRecord();
    test::setAngles(uneven, kTypeC, {0, 10, 45, 90}, {0, 5, 20, 21, 60, 90});
    test::setCandela(uneven, [&uneven](int h, int v) { return static_cast<float>(lobe(uneven, h, v)); });
    PhotometricRecord typeB = test::smallRecord();
    test::setAngles(typeB, kTypeB, {-90, -45, 0, 45, 90}, {-90, -30, 0, 30, 90});
    test::setCandela(typeB, [](int h, int v) { return 100 * h + v; });
    return {{"1,000 vertical angles", many},
            {"1,000 horizontal angles", planes},
            {"rotational", plain(37, 1)},
            {"quadrants", plain(37, 4, 90)},
            {"bilateral", plain(37, 5, 180)},
            {"uneven", uneven},
            {"type B", typeB}};
}

}  // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::cerr << "usage: reader_samples FOLDER\n";
        return 2;
    }
    const std::string folder = argv[1];
    for (const auto &make : {headers, tilts, shapes, folds, numbers, angles})
        for (const Sample &sample : make()) {
            const std::string text = iesFileText(sample.record);
            if (const std::string fault = test::readBackFault(text, sample.record); !fault.empty()) {
                std::cerr << sample.name << " is not read back: " << fault << '\n';
                return 1;
            }
            std::ofstream(folder + "/" + sample.name + ".ies", std::ios::binary) << text;
            std::ofstream(folder + "/" + sample.name + ".json") << json(sample.record) << '\n';
        }
}
