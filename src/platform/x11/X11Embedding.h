#pragma once

#include <functional>
#include <memory>

#include "platform/HostEmbedding.h"

namespace penwright {

/// The wizard as a child of a foreign X11 window. On any other display, and before a window is adopted, the calls
/// change nothing but what a top-level window of its own can do.
class X11Embedding : public HostEmbedding {
public:
    /// `hostGone` runs from the event loop when the window of the host that is watched, or the wizard's within it, has
    /// been destroyed.
    explicit X11Embedding(std::function<void()> hostGone);
    ~X11Embedding() override;

    void adopt(std::uintptr_t window) override;
    bool watchHost(std::uint32_t host) override;
    void takeFocus() override;
    void giveBack(std::uint32_t parent) override;
    std::uint32_t SetParent(std::uint32_t parent) override;
    void MoveWindow(int x, int y, PixelSize size) override;
    void raise() override;
    bool isShown() const override;
    PixelSize size() const override;
    double twipsPerPixel() const override;

private:
    class Private;
    std::unique_ptr<Private> d;
};

}  // namespace penwright
