#include "console/console_main.h"

#include <unistd.h>

#include <cstdio>

#include "console/batch_run.h"
#include "console/console_tasks.h"
#include "console/plot_run.h"
#include "console/prompt.h"

namespace quorix {
namespace {

enum ExitStatus : int { EXIT_GOOD = 0, EXIT_EXPRESSION = 1, EXIT_USAGE = 2 };

void Print(std::FILE* stream, std::string_view text) {
    std::fwrite(text.data(), 1, text.size(), stream);
}

int RunExpression(ConsoleSession& session, std::string_view expression) {
    std::string answer;
    const bool succeeded = session.Evaluate(expression, answer);
    answer.push_back('\n');
    Print(succeeded ? stdout : stderr, answer);
    return succeeded ? EXIT_GOOD : EXIT_EXPRESSION;
}

}  // namespace

int RunConsole(std::span<const std::string_view> arguments) {
    const ParsedOptions parsed = ParseOptions(arguments);
    if (!parsed.error.empty()) {
        Print(stderr, "quorix-calc: " + parsed.error + "\nTry 'quorix-calc --help'.\n");
        return EXIT_USAGE;
    }
    const ConsoleOptions& options = parsed.options;
    if (options.showHelp || options.showVersion) {
        Print(stdout, options.showHelp ? HelpText() : VersionText());
        return EXIT_GOOD;
    }
    if (options.task != ConsoleTask::calculate) {
        std::string output;
        const bool succeeded = RunTask(options, output);
        Print(succeeded || options.task != ConsoleTask::picture ? stdout : stderr, output);
        return succeeded ? EXIT_GOOD : EXIT_EXPRESSION;
    }
    ConsoleSession session(options);
    if (options.plotFile) {
        const PlotOutcome outcome = RunPlot(session, options);
        Print(stderr, outcome.messages);
        return outcome.succeeded ? EXIT_GOOD : EXIT_EXPRESSION;
    }
    if (options.expression) return RunExpression(session, *options.expression);
    if (isatty(STDIN_FILENO) != 0) {
        RunPrompt(session);
        return EXIT_GOOD;
    }
    return RunBatch(session, STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO) ? EXIT_GOOD : EXIT_EXPRESSION;
}

}  // namespace quorix
