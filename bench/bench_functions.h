#pragma once

namespace quorix {

/// Pairs of the real functions and of complex arithmetic and functions.
void RegisterFunctions();
void RegisterComplex();

}  // namespace quorix
