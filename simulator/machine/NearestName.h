// What somebody may have meant who wrote a name that there is not.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

// How many letters must be put in, left out, changed or swapped with their neighbour to make one
// name of the other. Case counts.
std::size_t editDistance(std::string_view left, std::string_view right);

// `; did you mean "SBMediaController"?`, with the nearest of the known names; empty when none is
// near: within a third of the name's letters. Of equally near ones it is the one that begins alike.
std::string didYouMean(std::string_view name, const std::vector<std::string>& known);

// The same for a name that may be unknown on purpose: only what differs in one or two letters is
// taken for a slip. Empty for a known name.
std::string typoSuggestion(std::string_view name, const std::vector<std::string>& known);

}  // namespace sim
