#pragma once

#include <functional>
#include <string>

#include "platform/HostEmbedding.h"

namespace penwright::test {

/// A window among the display's windows that keeps a transcript of what was done to it.
struct FakeEmbedding : HostEmbedding {
    void adopt(std::uintptr_t window) override { adopted = window; }
    bool watchHost(std::uint32_t host) override
    {
        transcript += "watch " + std::to_string(host) + "\n";
        return hostIsThere;
    }
    void takeFocus() override { transcript += "focus\n"; }
    void giveBack(std::uint32_t parent) override
    {
        transcript += "give back " + std::to_string(parent) + "\n";
        if (onGiveBack)
            onGiveBack();
    }
    std::uint32_t SetParent(std::uint32_t parent) override
    {
        transcript += "parent " + std::to_string(parent) + "\n";
        return former;
    }
    void MoveWindow(int x, int y, PixelSize to) override
    {
        transcript += "move " + std::to_string(x) + " " + std::to_string(y) + " " + std::to_string(to.width) + " " +
                      std::to_string(to.height) + "\n";
    }
    void raise() override { transcript += "raise\n"; }
    bool isShown() const override { return shown; }
    PixelSize size() const override { return current; }
    double twipsPerPixel() const override { return twips; }

    std::string transcript;
    std::uintptr_t adopted = 0;
    std::uint32_t former = 0;  ///< the parent that a move into the host answers
    bool hostIsThere = true;
    bool shown = false;
    PixelSize current{700, 500};
    double twips = 15;
    std::function<void()> onGiveBack;
};

}  // namespace penwright::test
