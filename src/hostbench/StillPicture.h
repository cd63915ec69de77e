#pragma once

#include <QImage>

namespace penwright {

/// Tells when a picture that is looked at again and again has come to rest: what is drawn late has been drawn. A caret
/// that blinks is at rest: two pictures that take turns count as one, however slowly the looks follow each other.
class StillPicture {
public:
    /// `past` is a picture that is no longer meant, such as that of the page before; a null image when there is none.
    explicit StillPicture(QImage past) : m_past(std::move(past)) {}

    /// One more look. True when the latest looks showed nothing new, nor `past`.
    bool look(const QImage &image);

    /// What the latest look saw.
    const QImage &image() const { return m_image; }

private:
    QImage m_past;
    QImage m_image;
    QImage m_other;
    int m_looks = 0;
};

}  // namespace penwright
