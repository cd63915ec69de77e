#include "hostbench/LuminaireTyper.h"

#include "core/NumberText.h"
#include "wizard/PageTable.h"

namespace penwright {

LuminaireTyper::LuminaireTyper(XDisplay &display, const PhotometricRecord &luminaire)
    : m_display(display), m_luminaire(luminaire)
{
}

QString LuminaireTyper::captionOf(int page)
{
    return QString::fromStdString(std::string(kPages.at(static_cast<std::size_t>(page - 1)).caption));
}

void LuminaireTyper::typePage(int page)
{
    switch (page) {
        case 1:
            return typeGeneralInfo();
        case 2:
            return typeTilt();
        case 3:
            return typeKeywords();
        case 4:
            return typeDistribution();
        default:
            return pasteCandelas();
    }
}

void LuminaireTyper::press(std::uint32_t key, int times, std::uint32_t modifier)
{
    for (int i = 0; i < times; ++i)
        if (!m_display.pressKey(key, modifier))
            m_problem = QStringLiteral("the keyboard has no key 0x%1").arg(key, 0, 16);
}

void LuminaireTyper::type(const std::string &text)
{
    const QString characters = QString::fromStdString(text);
    const QString missing = m_display.untypable(characters);
    if (missing.isEmpty())
        m_display.type(characters);
    else
        m_problem = QStringLiteral("the keyboard has no key for \"%1\" in %2").arg(missing, characters);
}

void LuminaireTyper::typeGeneralInfo()
{
    const PhotometricRecord &it = m_luminaire;
    for (const std::string &value :
         {generalText(int{it.NumLamps}), generalText(it.LumensPerLamp), generalText(it.CandelaMultiplier),
          generalText(it.BallastFactor), generalText(it.InputWatts)}) {
        type(value);
        press(kKeyTab);
    }
    press(kKeyDown, 3);  // the third shape of the list
    for (const float dimension : {it.Width, it.Length, it.Height}) {
        press(kKeyTab);
        type(generalText(dimension));
    }
    press(kKeyTab);
    press(kKeyRight);  // from feet to meters
    press(kKeyTab);
    press(kKeySpace);
}

void LuminaireTyper::typeTilt()
{
    type(generalText(int{m_luminaire.NumTiltAngles}));
    press(kKeyTab);
    press(kKeySpace);
    press(kKeyRight, m_luminaire.LampToLuminaireGeometry - 1);
    press(kKeyTab);
    typeColumn(m_luminaire.TiltAngles);
    press(kKeyUp, m_luminaire.NumTiltAngles - 1);
    press(kKeyRight);
    typeColumn(m_luminaire.TiltMultipliers);
}

void LuminaireTyper::typeColumn(const OneBased<float> &values)
{
    for (int row = 1; row <= values.size(); ++row) {
        type(generalText(values(row)));
        // Tab walks down the column, and behind its last row out of the grid.
        press(row < values.size() ? kKeyTab : kKeyReturn);
    }
}

void LuminaireTyper::typeKeywords()
{
    press(kKeyRight);
    for (int row = 2; row <= m_luminaire.Keywords.size(); ++row) {
        press(kKeyDown);
        const std::string &line = m_luminaire.Keywords(row);
        type(line.substr(line.find(' ') + 1));
    }
    press(kKeyReturn);
}

void LuminaireTyper::typeDistribution()
{
    press(kKeySpace);
    press(kKeyTab);
    press(kKeyDown, 5);  // the fifth entry of the list
    press(kKeyTab);
    press(kKeyTab, 1, kKeyControl);  // out of the grid of angles
    press(kKeyDown, 2);
}

void LuminaireTyper::pasteCandelas()
{
    press('v', 1, kKeyControl);
}

QString LuminaireTyper::candelaTable(const PhotometricRecord &luminaire)
{
    std::string table;
    for (int v = 1; v <= luminaire.NumVertAngles; ++v)
        for (int h = 1; h <= luminaire.NumHorzAngles; ++h)
            table +=
                generalText(static_cast<float>(luminaire.Candela(h, v))) + (h < luminaire.NumHorzAngles ? '\t' : '\n');
    return QString::fromStdString(table);
}

}  // namespace penwright
