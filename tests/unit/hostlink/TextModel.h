#pragma once

#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "core/PhotometricRecord.h"

namespace penwright::test {

/// What one record's eleven texts are, told a second time and in another way than the program tells it: each as (field
/// word, text), those that are not written left out.
class TextModel {
public:
    using Texts = std::vector<std::pair<std::string, std::string>>;

    static Texts of(const PhotometricRecord &r)
    {
        Texts texts{{"Filename", r.Filename}, {"Keywords", std::to_string(r.Keywords.size())}};
        std::string lines;
        for (int i = 1; i <= r.Keywords.size(); ++i)
            lines += r.Keywords(i) + "\r\n";
        if (r.Keywords.size() > 0)
            texts.emplace_back("KeywordData", lines);
        texts.emplace_back("TiltIncl", r.TiltIncl ? "-1" : "0");
        if (r.TiltIncl)
            texts.emplace_back("TiltData", std::to_string(r.LampToLuminaireGeometry) + "," +
                                               std::to_string(r.NumTiltAngles) + all(r.TiltAngles) +
                                               all(r.TiltMultipliers));
        texts.emplace_back("OtherData", std::to_string(r.NumLamps) + "," + single(r.LumensPerLamp) + "," +
                                            single(r.CandelaMultiplier) + "," + std::to_string(r.PhotometricType) +
                                            "," + std::to_string(r.UnitsType) + "," + single(r.Width) + "," +
                                            single(r.Length) + "," + single(r.Height) + "," + single(r.BallastFactor) +
                                            "," + single(r.InputWatts));
        texts.emplace_back("HorAngles", std::to_string(r.NumHorzAngles) + all(r.HorAngles));
        texts.emplace_back("VertAngles", std::to_string(r.NumVertAngles) + all(r.VertAngles));
        texts.emplace_back("Candela", candela(r));
        texts.emplace_back("OptionalData", r.OptionalData);
        texts.emplace_back("PictureFilename", r.PictureFilename);
        return texts;
    }

private:
    static std::string single(float value) { return form("%.7G", double{value}); }

    static std::string form(const char *format, double value)
    {
        char buffer[64];
        std::snprintf(buffer, sizeof buffer, format, value);
        std::string text = buffer;
        if (text == "-0")
            return "0";
        if (text.rfind("0.", 0) == 0)
            return text.substr(1);
        if (text.rfind("-0.", 0) == 0)
            return "-" + text.substr(2);
        return text;
    }

    static std::string all(const OneBased<float> &numbers)
    {
        std::string text;
        for (int i = 1; i <= numbers.size(); ++i)
            text += "," + single(numbers(i));
        return text;
    }

    static std::string candela(const PhotometricRecord &r)
    {
        std::string text;
        for (int h = 1; h <= r.Candela.rows(); ++h)
            for (int v = 1; v <= r.Candela.columns(); ++v)
                text += form("%.15G", r.Candela(h, v)) + ",";
        if (!text.empty())
            text.pop_back();
        return text;
    }
};

}  // namespace penwright::test
