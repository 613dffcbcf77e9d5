// The solvers beside single evaluations of the texts that they work with.

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <string>

#include "engine/bound_expression.h"
#include "engine/calc_context.h"
#include "equations/closed_form.h"
#include "equations/closed_form_texts.h"
#include "equations/equation_picture.h"
#include "equations/exact_root.h"
#include "equations/tex_translation.h"
#include "ratio_report.h"

namespace {

using namespace quorix;

/// The longest formula of a quartic filled with the coefficients 1 to 5.
std::u16string LongestFormula() {
    std::u16string text;
    for (const char16_t c : closed_form::kQuarticValues.back()) {
        if (c >= u'a' && c <= u'e') {
            text.append(u"((").append(1, static_cast<char16_t>(u'1' + (c - u'a'))).append(u"))");
        } else {
            text.push_back(c);
        }
    }
    // The letters of the function "sqrt" are none of the coefficients.
    return text;
}

QComplex Evaluated(const std::u16string& text) {
    ClearCalcError();
    const BoundExpressionScope bound({text, {}});
    return EvalBoundComplexClean(QReal{});
}

constexpr const char* kPictureTex =
    R"(\frac{-b+\sqrt{{b}^{2}-4*a*c}}{2*a}+\int_{0}^{1}{\left(x\right)}\hspace1dx)";

/// The rasteriser's program by itself, its picture read and thrown away.
std::size_t BareProgram() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) return 0;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    const std::string tex = std::string("\\nosmash \\huge ") + kPictureTex;
    char* const arguments[] = {const_cast<char*>("mimetex"), const_cast<char*>("-d"),
                               const_cast<char*>(tex.c_str()), nullptr};
    char* const environment[] = {nullptr};
    pid_t child = 0;
    const bool started =
        posix_spawn(&child, "/usr/bin/mimetex", &actions, nullptr, arguments, environment) == 0;
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    std::size_t total = 0;
    char block[4096];
    for (ssize_t got = 0; (got = read(ends[0], block, sizeof block)) > 0;)
        total += static_cast<std::size_t>(got);
    close(ends[0]);
    if (started) waitpid(child, nullptr, 0);
    return total;
}

}  // namespace

int main(int argc, char** argv) {
    bench::RegisterPair("quartic by all its formulas", bench::Loop([] {
                            std::array<std::u16string, 4> texts;
                            return QuarticRoots(u"1 2 3 4 -5", texts);
                        }),
                        bench::Loop([text = LongestFormula()] { return Evaluated(text); }), 60);
    bench::RegisterPair("exact root", bench::Loop([] {
                            int count = 0;
                            return ExactRootText(u"1 -3 1", 0, count)->size();
                        }),
                        bench::Loop([text = std::u16string(u"(3-sqrt(5))/(2)")] { return Evaluated(text); }),
                        10);
    bench::RegisterPair(
        "expression to TeX",
        bench::Loop([] { return ExpressionToTeX(u"fnSum(RT(3,k^2+1)/(k+1),k,1,10)+x^2/3").size(); }),
        bench::Loop([text = std::u16string(u"(3-sqrt(5))/(2)")] { return Evaluated(text); }), 0);
    EquationRasteriser rasteriser(MTEX_LIBRARY);
    EquationView view;
    int round = 0;
    if (rasteriser.IsLoaded() && BareProgram() > 0) {
        // A blank more or less each time keeps the picture out of the cache.
        bench::RegisterPair("picture of an equation", bench::Loop([&] {
                                const std::string tex =
                                    kPictureTex + std::string(static_cast<std::size_t>(++round % 64), ' ');
                                RenderEquation(rasteriser, view, tex, PageSizeCommand(2));
                                return view.picture.width;
                            }),
                            bench::Loop(BareProgram), 3);
        bench::RegisterPair("the same picture again", bench::Loop([&] {
                                RenderEquation(rasteriser, view, kPictureTex, PageSizeCommand(2));
                                return view.picture.width;
                            }),
                            bench::Loop(BareProgram), 0);
    }
    return bench::RunPairs(argc, argv);
}
