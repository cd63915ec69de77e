#pragma once

namespace penwright::test {

class Scene;

/// Gives the page that is shown values that pass its checks, one of several sets of them, by keys.
void fillPage(Scene &scene, unsigned kind);

}  // namespace penwright::test
