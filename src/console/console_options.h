#pragma once

// The command line of quorix-calc.

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/calc_context.h"
#include "engine/result_text.h"

namespace quorix {

/// What is done instead of calculating lines.
enum class ConsoleTask { calculate, solve, tex, picture };
/// A view of a graph: its middle, and the pixels of a unit.
struct PlotWindow {
    int centreX = 0;
    int centreY = 0;
    int unitX = 20;
    int unitY = 10;
};

struct ConsoleOptions {
    std::int32_t angleUnit = UNIT_DEGREES;
    ResultSettings result;
    /// UTF-8; none means to read lines.
    std::optional<std::string> expression;
    ConsoleTask task = ConsoleTask::calculate;
    /// UTF-8: the coefficients to solve, or the expression to translate.
    std::string taskText;
    /// UTF-8: the file that a picture goes to.
    std::string pictureFile;
    /// The same, argument by argument.
    std::vector<std::string> arguments;
    /// File for a graph, and the view that it shows.
    std::optional<std::string> plotFile;
    PlotWindow plot;
    bool showHelp = false;
    bool showVersion = false;
};

/// Options, or what is wrong with the command line.
struct ParsedOptions {
    ConsoleOptions options;
    std::string error;
};

/// arguments: without the program's name. An argument is an option only when it begins with "--", so that
/// "-3+5" is an expression; "--" ends the options. Values stand behind "=" or in the next argument. Several
/// expression arguments are joined by blanks.
ParsedOptions ParseOptions(std::span<const std::string_view> arguments);

/// Text of --help.
std::string_view HelpText();
/// Text of --version.
std::string_view VersionText();

}  // namespace quorix
