#pragma once

#include <QByteArray>
#include <QImage>

#include "plot/PlotPicture.h"

namespace penwright {

/// A picture as it leaves the program: on white, of one size, with a line below for each curve that says what it shows.
/// 1280 or more pixels wide.
QImage plotImage(const PlotPicture &picture);

/// The same as the bytes of a PNG file.
QByteArray plotPng(const PlotPicture &picture);

/// The same as an SVG drawing, its texts as texts; told in words as well.
QByteArray plotSvg(const PlotPicture &picture);

}  // namespace penwright
