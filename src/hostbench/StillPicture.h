#pragma once

#include <QImage>

namespace penwright {

/// Tells when a picture that is looked at again and again has come to rest: what is drawn late has been drawn. A caret
/// that blinks is at rest: two pictures that take turns count as one, however slowly the looks follow each other.
class StillPicture {
public:
    /// One more look. True when the latest looks showed nothing new, nor what is past.
    bool look(const QImage &image);

    /// What the latest looks saw is past, with its caret and without: another picture is meant from now on.
    void turn();

private:
    /// A picture, and the one that takes turns with it.
    struct Pair {
        QImage image;
        QImage other;
    };

    Pair m_past;
    Pair m_now;
    int m_looks = 0;
};

}  // namespace penwright
