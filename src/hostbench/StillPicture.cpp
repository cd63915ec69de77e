#include "hostbench/StillPicture.h"

namespace penwright {

namespace {

/// How many looks in turn must show nothing new.
constexpr int kStillLooks = 8;

}  // namespace

bool StillPicture::look(const QImage &image)
{
    if (image == m_image) {
        ++m_looks;
    } else {
        m_looks = image == m_other ? m_looks + 1 : 0;
        m_other = std::exchange(m_image, image);
    }
    return !m_image.isNull() && m_image != m_past && m_looks >= kStillLooks;
}

}  // namespace penwright
