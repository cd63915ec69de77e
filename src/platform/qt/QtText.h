#pragma once

#include <QString>

#include <string_view>

namespace penwright {

/// A UTF-8 text as the toolkit takes it.
inline QString toQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace penwright
