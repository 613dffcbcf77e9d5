#pragma once

// Names for the error codes that the engine itself raises; their words stand in the error table.

#include <cstdint>

namespace quorix {

enum EngineError : std::int32_t {
    ERROR_SYNTAX = -1,
    ERROR_DIVISION = -5,
    ERROR_OUT_OF_RANGE = -7,
    ERROR_PARENTHESIS = -8,
    ERROR_RADIX_CONVERSION = -40,
    ERROR_COMPLEX_UNSUPPORTED = -54,
    ERROR_INVALID_PARAMETER = -56,
};

}  // namespace quorix
