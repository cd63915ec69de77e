#pragma once

#include <string>

namespace penwright::test {

class Scene;

/// What does not hold between two acts, "" for nothing: the page shown is one of the six, records have the lengths that
/// they count, the candela table is that of the record, no dialog outlives its routine, the store can be read.
std::string faultBetweenActs(Scene &scene);

/// What does not hold at the end of a run with a status, its window still there.
std::string faultAtEnd(Scene &scene, int status);

/// What does not hold once the window is gone: no lock, every draft can be taken over, the run's own holds what its
/// pages held.
std::string faultOfDrafts(const Scene &scene);

}  // namespace penwright::test
