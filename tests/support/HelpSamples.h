#pragma once

#include <string>
#include <utility>
#include <vector>

#include "mkchm/ChmContainer.h"
#include "mkchm/HelpObjects.h"
#include "mkchm/LittleEndian.h"

namespace penwright::test {

using mkchm::ChmObject;

inline std::string samplePage(const std::string &title, const std::string &body)
{
    return "<html><head><title>" + title + "</title></head><body><h1>" + title + "</h1>" + body + "</body></html>";
}

inline std::string sampleEntry(const std::string &title, const std::string &link)
{
    return "<li><object type=\"text/sitemap\"><param name=\"Name\" value=\"" + title +
           "\"><param name=\"Local\" value=\"" + link + "\"></object>\n";
}

/// A small help file as the build makes them: two pages and one in a folder, ids 10, 20 and 30.
inline mkchm::HelpProject sampleProject()
{
    return {"Sample Help",
            "first.html",
            "toc.hhc",
            {"first.html", "second.html", "more/third.html", "style.css", "toc.hhc"},
            {{10, "first.html"}, {20, "second.html"}, {30, "more/third.html"}}};
}

inline std::string sampleFile(const std::string &name)
{
    if (name == "first.html")
        return samplePage("First &amp; foremost", "<p>Lumens of a lamp.</p><p><a href=\"second.html#low\">on</a></p>");
    if (name == "second.html")
        return samplePage("Second", "<p>Ballast factor of a lamp.</p><h2><a name=\"low\">Low</a></h2>");
    if (name == "more/third.html")
        return samplePage("Third", "<p>Candela only.</p><p><a href=\"../first.html\">back</a></p>");
    if (name == "toc.hhc")
        return "<ul>" + sampleEntry("First &amp; foremost", "first.html") + "<ul>" +
               sampleEntry("Second", "second.html") + "</ul>" + sampleEntry("Third", "more\\third.html") + "</ul>";
    return "h1 { color: #14365d; }";
}

inline std::string sampleHelp()
{
    return mkchm::compile(sampleProject(), sampleFile);
}

/// A record of `#SYSTEM`.
inline std::string systemRecord(unsigned code, const std::string &data)
{
    std::string bytes;
    mkchm::append16(bytes, code);
    mkchm::append16(bytes, data.size());
    return bytes + data;
}

/// `#SYSTEM` with some texts.
inline std::string systemObject(const std::vector<std::pair<unsigned, std::string>> &texts)
{
    std::string bytes("\3\0\0\0", 4);
    for (const auto &[code, text] : texts)
        bytes += systemRecord(code, text + '\0');
    return bytes;
}

/// `#IVB` as it is written: in the order given, whatever the offsets.
inline std::string idObject(const std::vector<std::pair<unsigned, unsigned>> &pairs)
{
    std::string bytes;
    mkchm::append32(bytes, 8 * pairs.size());
    for (const auto &[id, offset] : pairs) {
        mkchm::append32(bytes, id);
        mkchm::append32(bytes, offset);
    }
    return bytes;
}

/// `#WINDOWS` with one window.
inline std::string windowObject(unsigned title, unsigned contents, unsigned topic)
{
    std::string entry(196, '\0');
    const auto put = [&](std::size_t place, unsigned value) {
        std::string number;
        mkchm::append32(number, value);
        entry.replace(place, 4, number);
    };
    put(0x14, title);
    put(0x60, contents);
    put(0x68, topic);
    std::string bytes;
    mkchm::append32(bytes, 1);
    mkchm::append32(bytes, entry.size());
    return bytes + entry;
}

}  // namespace penwright::test
