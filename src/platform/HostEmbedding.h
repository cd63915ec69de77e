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

    /// Says which window is the wizard, by the toolkit's number for it: built, hidden and never shown so far. It must
    /// be destroyed before this object.
    virtual void adopt(std::uintptr_t window) = 0;

    /// Watches `host`: its end is told, and that of the wizard inside it. False when the number names no window; then
    /// the wizard is a top-level window of its own. A window that is watched already may be gone meanwhile: its end is
    /// told all the same.
    virtual bool watchHost(std::uint32_t host) = 0;

    /// Takes the keyboard focus to the wizard, unless a dialog is open or it is not embedded and shown.
    virtual void takeFocus() = 0;

    /// Hides the wizard and makes it a child of `parent`, as at the end of its life.
    virtual void giveBack(std::uint32_t parent) = 0;

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
