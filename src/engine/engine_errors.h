#pragma once

// Names for the error codes that the engine itself raises; their words stand in the error table.

#include <cstdint>

namespace quorix {

enum EngineError : std::int32_t {
    ERROR_SYNTAX = -1,
    ERROR_ARCCOS = -2,
    ERROR_ARCSIN = -3,
    ERROR_SQUARE_ROOT = -4,
    ERROR_DIVISION = -5,
    ERROR_OUT_OF_RANGE = -7,
    ERROR_PARENTHESIS = -8,
    /// The integrator's failure bears the words of matrix addition; this is intended.
    ERROR_INTEGRATION = -10,
    ERROR_NOT_INTEGER = -11,
    ERROR_ROOT_NOT_FOUND = -12,
    ERROR_ARCSINH = -13,
    ERROR_ARCCOSH = -14,
    ERROR_ARCTANH = -15,
    ERROR_ARCCOTH = -16,
    ERROR_ARCTAN = -17,
    ERROR_ARCCOT = -18,
    ERROR_SIN = -19,
    ERROR_COS = -20,
    ERROR_TAN = -21,
    ERROR_COTAN = -22,
    ERROR_SINH = -23,
    ERROR_COSH = -24,
    ERROR_TANH = -25,
    ERROR_COTANH = -26,
    ERROR_SEC = -27,
    ERROR_CSC = -28,
    ERROR_SECH = -29,
    ERROR_CSCH = -30,
    ERROR_ARCSEC = -31,
    ERROR_ARCCSC = -32,
    ERROR_ARCSECH = -33,
    ERROR_ARCCSCH = -34,
    ERROR_LCM = -35,
    ERROR_RADIX_CONVERSION = -40,
    ERROR_SERIES_STEP = -41,
    ERROR_NO_LIST = -49,
    ERROR_COMBINATION = -50,
    ERROR_FINANCE = -51,
    ERROR_INTEGER_TYPE = -53,
    ERROR_COMPLEX_UNSUPPORTED = -54,
    ERROR_INFINITE_SLOPE = -55,
    ERROR_INVALID_PARAMETER = -56,
    ERROR_ABSOLUTE = -57,
};

}  // namespace quorix
