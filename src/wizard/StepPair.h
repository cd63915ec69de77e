#pragma once

namespace penwright {

class PageStep;
class PageSteps;

/// One act of the user that has changed two pages: a step on each. Both are undone and redone together, whichever of
/// the pages it is asked for on; a step that is gone, or has given its content up, holds the other one.
struct StepPair {
    struct Side {
        PageSteps *page = nullptr;
        const PageStep *step = nullptr;  ///< none any more once it is gone
        bool isUndoneHere = true;        ///< whether its page can ask for it
    };
    Side one;
    Side other;

    Side &sideOf(const PageStep &step) { return one.step == &step ? one : other; }
    const Side &sideBeside(const PageStep &step) const { return one.step == &step ? other : one; }
};

}  // namespace penwright
