#include "console/console_tasks.h"

#include <optional>
#include <vector>

#include "console/console_session.h"
#include "engine/calc_context.h"
#include "equations/coefficient_line.h"
#include "equations/equation_page.h"
#include "equations/equation_picture.h"
#include "equations/equation_solver.h"
#include "equations/simultaneous.h"
#include "equations/tex_translation.h"
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

/// Coefficients in the engine's notation, each translated like a line of its own.
std::u16string EngineCoefficients(const ConsoleOptions& options) {
    const ConsoleSession session(options);
    const std::string_view text = options.taskText;
    std::u16string line;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find_first_of(" ;", at), text.size());
        const std::string_view token = text.substr(at, end - at);
        line.append(session.EngineText(token).value_or(FromUtf8(token)));
        if (end < text.size()) line.push_back(static_cast<char16_t>(text[end]));
        at = end + 1;
    }
    return line;
}

bool Solve(const ConsoleOptions& options, std::string& output) {
    const std::u16string text = EngineCoefficients(options);
    if (text.find(u';') != text.npos) return SolveSystem(text, output);
    return WriteLines(SolveEquationCommand(text), output);
}

/// Black on white at the size of the pages of a screen of double density.
bool WritePicture(const ConsoleOptions& options, std::string& output) {
    const std::optional<std::u16string> engineText =
        ConsoleSession(options).EngineText(options.expression.value_or(""));
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
    const std::optional<std::u16string> engineText = ConsoleSession(options).EngineText(options.taskText);
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
