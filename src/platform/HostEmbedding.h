#pragma once

#include <cstdint>

namespace penwright {

struct PixelSize {
    int width = 0;
    int height = 0;
    bool operator==(const PixelSize &) const = default;
};

/// The wizard window among the windows of the display. Places and sizes are exact pixels of the display, whatever
/// the scale factor. Where the display has no such windows, or a number names none, calls change nothing.
class HostEmbedding {
public:
    virtual ~HostEmbedding() = default;

    /// Makes the wizard a child of window `parent` and returns the number of its former parent, 0 when unknown.
    virtual std::uint32_t SetParent(std::uint32_t parent) = 0;

    /// Moves and sizes the wizard with repainting; a wizard not yet shown keeps the place until it is.
    virtual void MoveWindow(int x, int y, PixelSize size) = 0;

    /// Puts the wizard on top of its siblings without moving it.
    virtual void raise() = 0;

    virtual bool isShown() const = 0;
    virtual PixelSize size() const = 0;

    /// How many twips one pixel of the display is: 15 at 100 %, 7.5 at 200 %.
    virtual double twipsPerPixel() const = 0;
};

}  // namespace penwright
