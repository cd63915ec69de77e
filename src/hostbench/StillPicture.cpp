#include "hostbench/StillPicture.h"

#include <utility>

namespace penwright {

namespace {

/// How many looks in turn must show nothing new.
constexpr int kStillLooks = 8;

}  // namespace

bool StillPicture::look(const QImage &image)
{
    if (image == m_now.image) {
        ++m_looks;
    } else {
        m_looks = image == m_now.other ? m_looks + 1 : 0;
        m_now.other = std::exchange(m_now.image, image);
    }
    return !image.isNull() && image != m_past.image && image != m_past.other && m_looks >= kStillLooks;
}

void StillPicture::turn()
{
    m_past = std::exchange(m_now, {});
    m_looks = 0;
}

}  // namespace penwright
