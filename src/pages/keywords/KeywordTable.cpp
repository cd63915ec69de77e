#include "pages/keywords/KeywordTable.h"

namespace penwright {

std::int16_t gfnIsValidKeyword(std::string_view gstKey)
{
    for (std::int16_t position = 1; const KeywordEntry &entry : kStandardKeywords) {
        if (entry.keyword == gstKey)
            return position;
        ++position;
    }
    return 0;
}

}  // namespace penwright
