// What a mistyped word may have meant.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessel::cli {

/// The candidates that the word may have meant, the likeliest first, at most three: those a few
/// letters away, those that begin with it, and those whose part behind the last "/" is it. Case
/// does not matter.
std::vector<std::string> Suggestions(std::string_view word,
                                     const std::vector<std::string>& candidates);

/// `Did you mean "a" or "b"?`, or nothing.
std::string DidYouMean(std::string_view word, const std::vector<std::string>& candidates);

}  // namespace tessel::cli
