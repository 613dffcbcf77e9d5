#pragma once

// The arithmetic core word by word, as its rules read: the oracle that the core on limbs equals bit for bit.
// Reports go through quorix::mtherr. Arithmetic and decimal text have a source file each.

#include <cstdint>
#include <string>
#include <string_view>

#include "numerics/qreal.h"

namespace quorix::plain {

void Add(const QReal& a, const QReal& b, QReal& sum);
void Subtract(const QReal& subtrahend, const QReal& minuend, QReal& difference);
void Multiply(const QReal& a, const QReal& b, QReal& product);
void MultiplyShort(const QReal& a, const QReal& b, QReal& product);
void Divide(const QReal& divisor, const QReal& dividend, QReal& quotient);
int Compare(const QReal& a, const QReal& b);

void FromInteger(std::int32_t n, QReal& a);
void SplitInteger(const QReal& a, std::int32_t& n, QReal& fraction);
void Floor(const QReal& a, QReal& b);
void Round(const QReal& a, QReal& b);
void FromDouble(double d, QReal& a);
double ToDouble(const QReal& a);

bool FromText(std::string_view text, QReal& a);
std::string ToText(const QReal& a, int n);
std::string ToPositionalText(const QReal& a, int n);

void ComplexMultiply(const QComplex& a, const QComplex& b, QComplex& product);
void ComplexDivide(const QComplex& divisor, const QComplex& dividend, QComplex& quotient);

}  // namespace quorix::plain
