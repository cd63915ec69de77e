#include "help/window/HelpColours.h"

#include <algorithm>
#include <QColor>
#include <QRegularExpression>

namespace penwright {
namespace {

constexpr QRgb kLink = qRgb(0x0B, 0x57, 0xA4);

bool isDark(const QPalette &desktop)
{
    return desktop.color(QPalette::Base).lightness() < desktop.color(QPalette::Text).lightness();
}

QPalette paper()
{
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xF3, 0xF5, 0xF8));
    palette.setColor(QPalette::Text, QColor(0x1F, 0x23, 0x28));
    palette.setColor(QPalette::WindowText, QColor(0x1F, 0x23, 0x28));
    palette.setColor(QPalette::Link, kLink);
    palette.setColor(QPalette::LinkVisited, kLink);
    palette.setColor(QPalette::Highlight, kLink);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

/// What is white on paper is the palette's ground, what is black there its ink.
QColor turned(const QColor &colour, const QPalette &desktop)
{
    const float ground = desktop.color(QPalette::Base).lightnessF();
    const float ink = desktop.color(QPalette::Text).lightnessF();
    const float lightness = ground + (1 - colour.lightnessF()) * (ink - ground);
    return QColor::fromHslF(std::max(0.0F, colour.hslHueF()), colour.hslSaturationF(), lightness);
}

/// The colour that a word of a style names: red, #FFF, rgb(255, 255, 255); none for any other word.
QColor colourOf(const QRegularExpressionMatch &word)
{
    if (!word.hasCaptured(1))
        return QColor(word.captured());
    return {word.captured(1).toInt(), word.captured(2).toInt(), word.captured(3).toInt()};
}

/// What a property or an attribute says, with each colour in it turned.
QString turnedValue(const QString &value, const QPalette &desktop)
{
    static const QRegularExpression word(R"(\brgb\(\s*(\d{1,3})\s*,\s*(\d{1,3})\s*,\s*(\d{1,3})\s*\)|#?\w+)",
                                         QRegularExpression::CaseInsensitiveOption);
    QString result;
    qsizetype behind = 0;
    for (auto words = word.globalMatch(value); words.hasNext();) {
        const QRegularExpressionMatch match = words.next();
        const QColor colour = colourOf(match);
        if (colour.alpha() == 0 || !colour.isValid())
            continue;
        result += value.mid(behind, match.capturedStart() - behind);
        result += turned(colour, desktop).name();
        behind = match.capturedEnd();
    }
    return result + value.mid(behind);
}

}  // namespace

QPalette helpPalette(const QPalette &desktop)
{
    if (!isDark(desktop))
        return paper();
    QPalette palette = desktop;
    for (const auto role : {QPalette::Link, QPalette::LinkVisited})
        palette.setColor(role, turned(QColor(kLink), desktop));
    return palette;
}

QString withColoursOf(const QPalette &desktop, QString text)
{
    // Bounded, so that a hostile page takes no time to speak of.
    static const QRegularExpression coloured(
        R"(\b(?:bgcolor|color|text|link|background|border)(?:-[a-z]{1,20}){0,2}\s{0,3}[:=]\s{0,3})"
        R"(("[^">]{1,80}"|'[^'>]{1,80}'|[^\s;}>"'][^;}>"'\n]{0,80}))",
        QRegularExpression::CaseInsensitiveOption);
    if (!isDark(desktop))
        return text;
    QString result;
    qsizetype behind = 0;
    for (auto places = coloured.globalMatch(text); places.hasNext();) {
        const QRegularExpressionMatch match = places.next();
        result += text.mid(behind, match.capturedStart(1) - behind);
        result += turnedValue(match.captured(1), desktop);
        behind = match.capturedEnd(1);
    }
    return result + text.mid(behind);
}

QColor paneLine(const QPalette &desktop)
{
    const QColor text = desktop.color(QPalette::WindowText);
    const QColor ground = desktop.color(QPalette::Window);
    const auto mix = [](int over, int under) { return (2 * over + 3 * under) / 5; };
    return {mix(text.red(), ground.red()), mix(text.green(), ground.green()), mix(text.blue(), ground.blue())};
}

}  // namespace penwright
