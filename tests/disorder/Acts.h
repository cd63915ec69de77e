#pragma once

#include <string>

namespace penwright::test {

class Scene;

/// Does what a line of a script says, or nothing where that is not possible at this moment, as a user who cannot click
/// what is not there. What has gone wrong, "" for nothing.
std::string act(Scene &scene, const std::string &line);

}  // namespace penwright::test
