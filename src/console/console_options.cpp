#include "console/console_options.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "equations/graph_view.h"

namespace quorix {
namespace {

constexpr int kMaxDigits = 99;
constexpr int kFarthestCentre = 1'000'000;

struct NamedValue {
    std::string_view name;
    std::int32_t value;
};

constexpr auto kAngles =
    std::to_array<NamedValue>({{"deg", UNIT_DEGREES}, {"rad", UNIT_RADIANS}, {"grad", UNIT_GRADS}});
constexpr auto kFormats = std::to_array<NamedValue>(
    {{"norm", FORMAT_NORM}, {"fix", FORMAT_FIX}, {"sci", FORMAT_SCI}, {"frac", FORMAT_FRAC}});
constexpr auto kBases =
    std::to_array<NamedValue>({{"2", RADIX_BIN}, {"8", RADIX_OCT}, {"10", RADIX_DEC}, {"16", RADIX_HEX}});
constexpr auto kWords = std::to_array<NamedValue>({{"8", WORD_8}, {"16", WORD_16}, {"32", WORD_32}});

struct NamedLocale {
    std::string_view name;
    std::u16string_view numberLocale;
};
constexpr auto kLocales =
    std::to_array<NamedLocale>({{"us", u"English (US)"}, {"uk", u"English (UK)"}, {"european", u"European"}});

bool FindValue(std::span<const NamedValue> values, std::string_view name, std::int32_t& value) {
    const auto found = std::ranges::find(values, name, &NamedValue::name);
    if (found == values.end()) return false;
    value = found->value;
    return true;
}

bool ParseInteger(std::string_view text, int least, int most, int& value) {
    int read = 0;
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), read);
    if (parsed.ec != std::errc() || parsed.ptr != text.data() + text.size() || read < least || read > most) {
        return false;
    }
    value = read;
    return true;
}

bool SetTask(ConsoleOptions& options, ConsoleTask task, std::string_view text) {
    options.task = task;
    options.taskText = text;
    return true;
}

bool ParseDigits(std::string_view text, int& digits) {
    return ParseInteger(text, 0, kMaxDigits, digits);
}

// "X,Y".
bool ParsePair(std::string_view text, int least, int most, int& x, int& y) {
    const std::size_t comma = text.find(',');
    return comma != std::string_view::npos && ParseInteger(text.substr(0, comma), least, most, x) &&
           ParseInteger(text.substr(comma + 1), least, most, y);
}

using Setter = bool (*)(ConsoleOptions& options, std::string_view value);

struct OptionRow {
    std::string_view name;
    Setter set;
};

// Options that take a value.
constexpr auto kValueOptions = std::to_array<OptionRow>({
    {"--angle", [](ConsoleOptions& options,
                   std::string_view value) { return FindValue(kAngles, value, options.angleUnit); }},
    {"--format", [](ConsoleOptions& options,
                    std::string_view value) { return FindValue(kFormats, value, options.result.formatId); }},
    {"--fixed",
     [](ConsoleOptions& options, std::string_view value) {
         options.result.formatId = FORMAT_FIX;
         return ParseDigits(value, options.result.fixDigits);
     }},
    {"--base", [](ConsoleOptions& options,
                  std::string_view value) { return FindValue(kBases, value, options.result.radixId); }},
    {"--word", [](ConsoleOptions& options,
                  std::string_view value) { return FindValue(kWords, value, options.result.wordId); }},
    {"--locale",
     [](ConsoleOptions& options, std::string_view value) {
         const auto found = std::ranges::find(kLocales, value, &NamedLocale::name);
         if (found == kLocales.end()) return false;
         options.result.numberLocale = found->numberLocale;
         return true;
     }},
    {"--plot",
     [](ConsoleOptions& options, std::string_view value) {
         options.plotFile = value;
         return !value.empty();
     }},
    {"--centre",
     [](ConsoleOptions& options, std::string_view value) {
         return ParsePair(value, -kFarthestCentre, kFarthestCentre, options.plot.centreX,
                          options.plot.centreY);
     }},
    {"--units",
     [](ConsoleOptions& options, std::string_view value) {
         return ParsePair(value, kSmallestUnit, kLargestUnit, options.plot.unitX, options.plot.unitY);
     }},
    {"--digits", [](ConsoleOptions& options,
                    std::string_view value) { return ParseDigits(value, options.result.digits); }},
    {"--solve", [](ConsoleOptions& options,
                   std::string_view value) { return SetTask(options, ConsoleTask::solve, value); }},
    {"--tex", [](ConsoleOptions& options,
                 std::string_view value) { return SetTask(options, ConsoleTask::tex, value); }},
    {"--picture",
     [](ConsoleOptions& options, std::string_view value) {
         options.task = ConsoleTask::picture;
         options.pictureFile = value;
         return !value.empty();
     }},
});

class Parser {
  public:
    explicit Parser(std::span<const std::string_view> arguments) : arguments_(arguments) {}

    ParsedOptions Run() {
        bool areOptionsOver = false;
        while (at_ < arguments_.size() && result_.error.empty()) {
            const std::string_view argument = arguments_[at_++];
            if (areOptionsOver || !argument.starts_with("--")) {
                AppendExpression(argument);
            } else if (argument == "--") {
                areOptionsOver = true;
            } else {
                ParseOption(argument);
            }
        }
        return std::move(result_);
    }

  private:
    void AppendExpression(std::string_view argument) {
        result_.options.arguments.emplace_back(argument);
        std::optional<std::string>& expression = result_.options.expression;
        if (expression) {
            expression->append(" ").append(argument);
        } else {
            expression = std::string(argument);
        }
    }

    void ParseOption(std::string_view argument) {
        const std::size_t equals = argument.find('=');
        const std::string_view name = argument.substr(0, equals);
        const auto row = std::ranges::find(kValueOptions, name, &OptionRow::name);
        if (row == kValueOptions.end()) return ParseFlag(argument);
        std::string_view value;
        if (equals != std::string_view::npos) {
            value = argument.substr(equals + 1);
        } else if (at_ < arguments_.size()) {
            value = arguments_[at_++];
        } else {
            result_.error = "option " + std::string(name) + " needs a value";
            return;
        }
        if (!row->set(result_.options, value)) {
            result_.error = "option " + std::string(name) + " does not take \"" + std::string(value) + "\"";
        }
    }

    void ParseFlag(std::string_view argument) {
        if (argument == "--help") {
            result_.options.showHelp = true;
        } else if (argument == "--version") {
            result_.options.showVersion = true;
        } else {
            result_.error = "unknown option " + std::string(argument);
        }
    }

    std::span<const std::string_view> arguments_;
    std::size_t at_ = 0;
    ParsedOptions result_;
};

}  // namespace

ParsedOptions ParseOptions(std::span<const std::string_view> arguments) {
    return Parser(arguments).Run();
}

std::string_view HelpText() {
    return R"(Usage: quorix-calc [OPTION]... [EXPRESSION]
Computes EXPRESSION with about 100 digits and prints the result. Without one it
reads lines: at a terminal with a prompt, otherwise from standard input, one
result for each line. [ans] is the result before.

  [VA]=1.5                   sets a variable; its names are [VA] to [VZ]
  [VA]=[1 2;3 4]             a matrix: elements part at blanks, rows at ";"
  LIST=1 2 3                 the data of sum(), avg(), median() and the like
  [VB]=inv([VA])             any expression will do

An expression is one of matrices when it names a matrix or uses det, inv, trans,
rank, eigl, eigv, diag, orth, tri or solve; in it + - * / are the only others.

  --angle deg|rad|grad       unit of angles (deg)
  --format norm|fix|sci|frac output format (norm)
  --fixed N                  format fix with N decimals (4)
  --base 2|8|10|16           base of input and output (10)
  --word 8|16|32             word size of integers in bits (8)
  --locale us|uk|european    decimal sign and separators (us); in european the
                             decimal sign is "," and arguments part at ";"
  --digits N                 digits of the result behind the point, to 99 (32)
  --solve COEFFICIENTS       roots of a polynomial of degree 1 to 4, highest power
                             first: '1 -3 2'; of linear equations, which part at
                             ";", with the right-hand side last: '2 1 5; 1 -1 1'
  --tex EXPRESSION           the expression as TeX
  --picture FILE EXPRESSION  the expression typeset, as a PNG file
  --plot FILE F...           draws graphs of the functions F of x as a picture,
                             PNG or BMP by the ending of FILE
  --centre X,Y               the middle of the graph (0,0)
  --units PX,PY              pixels of its units, 8 to 96 (20,10)
  --help, --version          this text, the version
  --                         ends the options: quorix-calc -- '--help'

Exit status: 0, 1 when an expression has an error, 2 for a wrong command line.
)";
}

std::string_view VersionText() {
    return "quorix-calc " QUORIX_VERSION "\n";
}

}  // namespace quorix
