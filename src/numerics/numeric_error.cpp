#include "numerics/numeric_error.h"

#include <array>
#include <string>

#include "numerics/qcore.h"

namespace quorix {
namespace {

int errorFlag = NUMERIC_OK;
DebugSink debugSink = nullptr;

constexpr std::array<std::string_view, NUMERIC_PARTIAL_LOSS + 1> kErrorWords = {
    "unknown",
    "domain",
    "singularity",
    "overflow",
    "underflow",
    "total loss of precision",
    "partial loss of precision",
};

}  // namespace

void mtherr(const char* name, int code) {
    errorFlag = code;
    if (debugSink == nullptr) return;
    const bool isKnown = code > NUMERIC_OK && code <= NUMERIC_PARTIAL_LOSS;
    const std::string_view word = kErrorWords[isKnown ? static_cast<std::size_t>(code) : 0];
    WriteDebugLine(std::string("\n").append(name).append(" ").append(word).append(" error\n"));
}

int NumericErrorFlag() {
    return errorFlag;
}

void ClearNumericError() {
    errorFlag = NUMERIC_OK;
}

void SetDebugStream(DebugSink sink) {
    debugSink = sink;
}

void WriteDebugLine(std::string_view line) {
    if (debugSink != nullptr) debugSink(line);
}

}  // namespace quorix
