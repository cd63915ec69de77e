#include "grid/GridSource.h"

namespace penwright {

GridEdit GridSource::paste(const GridBlock &block, std::string_view text, const std::string &title)
{
    return pastedEdit(*this, block, text, title);
}

std::optional<std::string> GridSource::copy(const GridBlock &block) const
{
    return blockText(*this, block);
}

}  // namespace penwright
