#pragma once

#include <memory>

#include "platform/HostEmbedding.h"

class QWidget;

namespace penwright {

class Closing;

/// The wizard as a child of a foreign X11 window. On any other display, and before a window is adopted, the calls
/// change nothing but what a top-level window of its own can do.
class X11Embedding : public HostEmbedding {
public:
    explicit X11Embedding(Closing &closing);
    ~X11Embedding() override;

    /// The wizard's top-level widget, built, hidden and never shown so far. Its native window is made here. The widget
    /// must be destroyed before this object.
    void adopt(QWidget &window);

    /// Watches `host`: when its window or the wizard's is destroyed, Closing::hostVanished follows. False when the
    /// number names no window; then the wizard is a top-level window of its own, and one line on stderr says so.
    bool watchHost(std::uint32_t host);

    /// Takes the keyboard focus to the wizard, unless a dialog is open or it is not embedded and shown.
    void takeFocus();

    /// Hides the wizard and makes it a child of `parent`, as at the end of its life.
    void giveBack(std::uint32_t parent);

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
