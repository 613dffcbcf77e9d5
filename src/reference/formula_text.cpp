#include "reference/formula_text.h"

#include <algorithm>

#include "platform/utf8.h"

namespace quorix {

namespace {

struct Replacement {
    std::u16string_view tex;
    std::u16string_view plain;
};

// Longer words stand before those that they start with.
constexpr Replacement kReplacements[] = {
    {u"\\alpha", u"α"}, {u"\\beta", u"β"},   {u"\\gamma", u"γ"}, {u"\\delta", u"δ"},  {u"\\epsilon", u"ε"},
    {u"\\eta", u"η"},   {u"\\theta", u"θ"},  {u"\\kappa", u"κ"}, {u"\\lambda", u"λ"}, {u"\\mu", u"μ"},
    {u"\\nu", u"ν"},    {u"\\xi", u"ξ"},     {u"\\pi", u"π"},    {u"\\rho", u"ρ"},    {u"\\sigma", u"σ"},
    {u"\\tau", u"τ"},   {u"\\varphi", u"φ"}, {u"\\phi", u"φ"},   {u"\\chi", u"χ"},    {u"\\psi", u"ψ"},
    {u"\\omega", u"ω"}, {u"\\Delta", u"Δ"},  {u"\\Theta", u"Θ"}, {u"\\Lambda", u"Λ"}, {u"\\Sigma", u"Σ"},
    {u"\\Phi", u"Φ"},   {u"\\Omega", u"Ω"},  {u"\\cdot", u"·"},  {u"\\%", u"%"},      {u"\\hat U", u"Û"},
    {u"^o", u"°"},      {u"^0", u"°"},       {u"^2", u"²"},      {u"^3", u"³"},       {u"^4", u"⁴"},
    {u"\\", u""},       {u"{", u""},         {u"}", u""},        {u"_", u""},
};

}  // namespace

std::u16string PlainFormulaText(std::string_view tex) {
    const std::u16string wide = FromUtf8OrLatin1(tex);
    std::u16string_view rest = wide;
    std::u16string plain;
    while (!rest.empty()) {
        const auto row = std::find_if(std::begin(kReplacements), std::end(kReplacements),
                                      [&](const Replacement& r) { return rest.starts_with(r.tex); });
        if (row == std::end(kReplacements)) {
            plain += rest.front();
            rest.remove_prefix(1);
            continue;
        }
        plain.append(row->plain);
        rest.remove_prefix(row->tex.size());
        // The blank behind a command only ends its name.
        if (row->tex.size() > 2 && rest.starts_with(u' ')) {
            rest.remove_prefix(1);
        }
    }
    return plain;
}

}  // namespace quorix
