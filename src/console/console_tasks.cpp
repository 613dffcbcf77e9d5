#include "console/console_tasks.h"

#include <optional>
#include <vector>

#include "engine/calc_context.h"
#include "equations/coefficient_line.h"
#include "equations/equation_page.h"
#include "equations/equation_picture.h"
#include "equations/equation_solver.h"
#include "equations/simultaneous.h"
#include "equations/tex_translation.h"
#include "frontends/engine_text.h"
#include "platform/files.h"
#include "platform/mtex_exports.h"
#include "platform/png_writer.h"
#include "platform/program_folder.h"
#include "platform/utf8.h"

namespace quorix {
namespace {

bool IsSolved(std::string_view line) {
    return line != kInvalidLine && line != kInvalidDegree && line != kNoQuadraticRoot && line != kNoRoot &&
           line != kNotSolved;
}

bool WriteLines(const std::vector<std::string>& lines, std::string& output) {
    bool solved = !lines.empty();
    for (const std::string& line : lines) {
        solved = solved && IsSolved(line);
        output.append(line).push_back('\n');
    }
    return solved;
}

bool SolveSystem(std::u16string_view text, std::string& output) {
    std::vector<std::u16string> equations;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(u';'), text.size());
        const std::optional<std::u16string> equation = CheckedLine(text.substr(0, end));
        if (!equation) {
            output.append(ToUtf8(kInvalidParametersAgain)).push_back('\n');
            return false;
        }
        equations.push_back(*equation);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    const SystemSolution solution = SolveSimultaneous(equations);
    if (solution.message.empty()) return WriteLines(solution.lines, output);
    output.append(solution.message).push_back('\n');
    return false;
}

bool Solve(const ConsoleOptions& options, std::string& output) {
    const std::u16string text = WithEngineSigns(FromUtf8(options.taskText));
    if (text.find(u';') != text.npos) return SolveSystem(text, output);
    return WriteLines(SolveEquationCommand(text), output);
}

/// Black on white at the size of the pages of a screen of double density.
bool WritePicture(const ConsoleOptions& options, std::string& output) {
    const std::optional<std::u16string> engineText =
        ToEngineText(FromUtf8(options.expression.value_or("")), options.result.numberLocale, 10);
    const std::string tex = engineText ? ExpressionToTeX(*engineText) : std::string(kTexSourceOverlength);
    EquationRasteriser rasteriser(ExecutableFolder() / mtex::kLibraryFile);
    EquationView view;
    if (!RenderEquation(rasteriser, view, tex, PageSizeCommand(2))) {
        output = ToUtf8(kRenderFailed) + "\n";
        return false;
    }
    const std::vector<std::uint8_t> file = EncodePng(view.picture);
    if (file.empty()) {
        output = "There is no picture of it\n";
        return false;
    }
    const bool written = WriteFileAtomically(options.pictureFile, file);
    if (!written) output = options.pictureFile + " cannot be written\n";
    return written;
}

bool WriteTeX(const ConsoleOptions& options, std::string& output) {
    const std::optional<std::u16string> engineText =
        ToEngineText(FromUtf8(options.taskText), options.result.numberLocale, 10);
    output = engineText ? ExpressionToTeX(*engineText) : std::string(kTexSourceOverlength);
    output.push_back('\n');
    return true;
}

}  // namespace

bool RunTask(const ConsoleOptions& options, std::string& output) {
    SetAngleUnit(options.angleUnit);
    output.clear();
    switch (options.task) {
        case ConsoleTask::solve: return Solve(options, output);
        case ConsoleTask::picture: return WritePicture(options, output);
        default: return WriteTeX(options, output);
    }
}

}  // namespace quorix
