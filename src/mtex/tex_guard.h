#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quorix::mtex {

/// Longest text that is rasterised, in bytes.
inline constexpr std::size_t kLongestTex = 8191;

/// Whether a text holds nothing but printable ASCII and commands of a list of mathematical signs and layout.
/// The rasteriser knows commands that read files, run programs or define macros; none of them is in it.
bool IsHarmlessTex(std::string_view tex);

/// The text as the rasteriser takes it. It reads some bare words as functions of what follows them, which
/// takes delimiters apart ("sin\left(") and loses words ("det"): names of functions become commands.
std::string PreparedTex(std::string_view tex);

}  // namespace quorix::mtex
