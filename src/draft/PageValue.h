#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace penwright {

/// What one control of a page holds, under the control's name. The text is made when it is asked for, on any thread and
/// without the control, exact to the last bit of each number.
struct HeldText {
    std::string name;
    std::function<std::string()> text;
};

/// What stands on a page: what its named controls hold, boxes before grids, in the order of the form.
using PageValue = std::vector<HeldText>;

/// What controls of a page are to hold, by their names.
using PageText = std::map<std::string, std::string>;

/// What controls hold whose texts are there already.
inline PageValue asValue(const PageText &texts)
{
    PageValue value;
    for (const auto &[name, text] : texts)
        value.push_back({name, [text = text] { return text; }});
    return value;
}

}  // namespace penwright
