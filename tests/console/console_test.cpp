#include <fcntl.h>
#include <gmock/gmock.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "console/batch_run.h"
#include "console/console_options.h"
#include "console/console_session.h"
#include "console/plot_run.h"
#include "console/prompt.h"
#include "engine/eval_matrix.h"
#include "matrix/matrix_operators.h"
#include "platform/files.h"
#include "support/engine_fixture.h"
#include "support/temporary_folder.h"

namespace quorix {
namespace {

using ::testing::HasSubstr;
using ConsoleTest = EngineTest;

ParsedOptions Parse(std::vector<std::string_view> arguments) {
    return ParseOptions(arguments);
}

TEST_F(ConsoleTest, OptionsSetWhatTheyName) {
    const ConsoleOptions options = Parse({"--angle", "rad", "--format=sci", "--base", "16", "--word=32",
                                          "--locale", "european", "--digits", "99", "2+", "3"})
                                       .options;
    EXPECT_EQ(options.angleUnit, UNIT_RADIANS);
    EXPECT_EQ(options.result.formatId, FORMAT_SCI);
    EXPECT_EQ(options.result.radixId, RADIX_HEX);
    EXPECT_EQ(options.result.wordId, WORD_32);
    EXPECT_EQ(options.result.numberLocale, u"European");
    EXPECT_EQ(options.result.digits, 99);
    EXPECT_EQ(options.expression, "2+ 3");
    const ConsoleOptions fixed = Parse({"--fixed", "2"}).options;
    EXPECT_EQ(fixed.result.formatId, FORMAT_FIX);
    EXPECT_EQ(fixed.result.fixDigits, 2);
    EXPECT_FALSE(fixed.expression);
    EXPECT_EQ(Parse({"-3+5"}).options.expression, "-3+5");
    EXPECT_EQ(Parse({"--", "--3"}).options.expression, "--3");
    EXPECT_EQ(Parse({"-h"}).options.expression, "-h");
    EXPECT_TRUE(Parse({"--help"}).options.showHelp);
    EXPECT_TRUE(Parse({"--version", "1"}).options.showVersion);
}

TEST_F(ConsoleTest, WrongCommandLinesSayWhatIsWrong) {
    const struct {
        std::vector<std::string_view> arguments;
        std::string_view part;
    } rows[] = {{{"--nosuch"}, "unknown option --nosuch"},
                {{"--3+5"}, "unknown option --3+5"},
                {{"--angle"}, "needs a value"},
                {{"--angle", "turns"}, "\"turns\""},
                {{"--base=7", "1"}, "\"7\""},
                {{"--digits", "100"}, "\"100\""},
                {{"--digits", "-1"}, "\"-1\""},
                {{"--fixed", "2x"}, "\"2x\""},
                {{"--word", "64"}, "\"64\""},
                {{"--locale", ""}, "\"\""},
                {{"--plot="}, "\"\""},
                {{"--units", "7,20"}, "\"7,20\""},
                {{"--centre", "1"}, "\"1\""},
                {{"--help=1"}, "unknown option"}};
    for (const auto& row : rows) EXPECT_THAT(ParseOptions(row.arguments).error, HasSubstr(row.part));
}

TEST_F(ConsoleTest, PlotsAreDrawnIntoPictureFiles) {
    const quorix::testing::TemporaryFolder folder;
    const auto plot = [&](std::string_view file, std::vector<std::string_view> rest) {
        const std::string path = (folder / file).string();
        std::vector<std::string_view> arguments = {"--angle", "rad", "--plot", path};
        arguments.insert(arguments.end(), rest.begin(), rest.end());
        const ConsoleOptions options = Parse(arguments).options;
        return RunPlot(ConsoleSession(options), options);
    };
    const auto head = [&](std::string_view file) {
        const auto bytes = ReadWholeFile(folder / file);
        return bytes ? std::string(bytes->begin(), bytes->begin() + 4) : "absent";
    };
    EXPECT_TRUE(plot("a.png", {"--units=40,40", "--centre", "1,-1", "sin(x)×3", "2√(x)", "x÷2"}).succeeded);
    EXPECT_EQ(head("a.png"), "\x89PNG");
    EXPECT_TRUE(plot("b.BMP", {"-x"}).succeeded);
    EXPECT_EQ(head("b.BMP").substr(0, 2), "BM");
    EXPECT_THAT(plot("c.png", {"x", "x+"}).messages, HasSubstr("no value of \"x+\""));
    EXPECT_EQ(head("c.png"), "\x89PNG") << "the other function is drawn";
    EXPECT_THAT(plot("d.gif", {"x"}).messages, HasSubstr(".png or .bmp"));
    EXPECT_THAT(plot("e.png", {}).messages, HasSubstr("needs a function"));
    EXPECT_THAT(plot("absent/f.png", {"x"}).messages, HasSubstr("cannot write"));
}

std::string Answer(ConsoleSession& session, std::string_view line, bool succeeds = true) {
    std::string answer;
    EXPECT_EQ(session.Evaluate(line, answer), succeeds) << line;
    return answer;
}

TEST_F(ConsoleTest, LinesAreInTheDisplaysNotation) {
    ConsoleSession session(Parse({}).options);
    EXPECT_EQ(Answer(session, "1÷3+2"), "2.33333333333333333333333333333333");
    EXPECT_EQ(Answer(session, "3×(5−2)"), "9");
    EXPECT_EQ(Answer(session, "[ans]*2"), "18");
    EXPECT_EQ(Answer(session, "1/0", false), "Invalid parameter(s)");
    EXPECT_EQ(Answer(session, "[ans]"), "18");  // An error leaves the last result.
    EXPECT_EQ(Answer(session, "2(3)"), "6");
    EXPECT_EQ(Answer(session, ".5+.5"), "1");
    EXPECT_EQ(Answer(session, "1000000/3"), "333,333.333333333333333333333333333");
    EXPECT_EQ(Answer(session, "i*(1+i)"), "-1.0000E0+i");
    EXPECT_EQ(Answer(session, "\xFF\xFE", false), "Syntax error");
    EXPECT_EQ(Answer(session, std::string(5000, '1'), false), "Overlength string");
}

TEST_F(ConsoleTest, SettingsShapeTheAnswer) {
    const struct {
        std::vector<std::string_view> arguments;
        std::string_view line, answer;
    } rows[] = {
        {{"--locale", "european"}, "1.234,5+0", "1.234,5"},  // What was printed can be entered.
        {{"--locale", "uk", "--fixed", "2"}, "1234.5*2", "2,469.00"},
        {{"--format", "sci", "--digits", "3"}, "2/3", "6.667E-1"},
        {{"--digits", "60"}, "1/7", "0.142857142857142857142857142857142857142857142857142857142857"}};
    for (const auto& row : rows) {
        ConsoleSession session(ParseOptions(row.arguments).options);
        EXPECT_EQ(Answer(session, row.line), row.answer) << row.line;
    }
}

TEST_F(ConsoleTest, VariablesHoldNumbersMatricesAndLists) {
    SetMatrixOperators(MatrixOperatorTable());
    ConsoleSession session(Parse({}).options);
    const auto expect = [&session](std::string_view table) {
        for (const auto& [line, answer] : Rows(table)) EXPECT_EQ(Answer(session, line), answer) << line;
    };
    expect(
        "[VA]=1.5 -> 1.5;  [vb] = [VA]*2  -> 3; [VA]+[VB] -> 4.5; [VW]=(1+i)^0+i -> 1.0000E0+i; "
        "[VW]-i -> 1");
    expect(
        "[VA]=[1 2;3 4] -> [1 2;3 4]; [ans]*2 -> [2 4;6 8]; [VB]=inv([VA]) -> [-2 1;1.5 -0.5]; "
        "[VA]*[VB] -> [1 0;0 1]; [VC]=det([VA]) -> -2; [VC]+1 -> -1; "
        "solve([VA],[VB]) -> [5.5 -2.5;-3.75 1.75]; [VZ]=[ -.5\t1e3 ;\u22122 +0.1 ] -> [-0.5 1000;-2 0.1]; "
        "[VZ]*[VZ]-[VZ]*[VZ] -> [0 0;0 0]; -([VZ]-[VZ]) -> [0 0;0 0]; "
        "[VD]=[1e300 1e-300 0.30000000000000004] -> [1e+300 1e-300 0.30000000000000004]");
    expect(
        "LIST=1 2 -4 -> [1;2;-4]; sum() -> -1; list=[1;2;4.5] -> [1;2;4.5]; avg()*2 -> 5; "
        "LIST=trans([VD]) -> [1e+300;1e-300;0.30000000000000004]; N() -> 3");
    expect("[VA]=2 -> 2; [VA]*2 -> 4");  // A number again.

    ConsoleSession european(Parse({"--locale", "european"}).options);
    EXPECT_EQ(Answer(european, "[VA]=[1,5 -2;0 1]"), "[1,5 -2;0 1]");
    EXPECT_EQ(Answer(european, "[VB]=solve([VA];[VA])"), "[1 0;0 1]");
    EXPECT_EQ(Answer(european, "LIST=1,5 2,5"), "[1,5;2,5]");
    EXPECT_EQ(Answer(european, "sum()"), "4");
    SetMatrixOperators({});
}

TEST_F(ConsoleTest, BadAssignmentsSayWhatIsWrong) {
    SetMatrixOperators(MatrixOperatorTable());
    std::string wide = "[VA]=[1";
    for (int i = 0; i < 30; ++i) wide += " 1";
    ConsoleSession session(Parse({}).options);
    Answer(session, "[VB]=[2 0;0 2]");
    Answer(session, "[VC]=[1 2;2 4]");
    for (const std::string name : {"[VRE]", "[ans]", "[VLRE]", "[X]"}) {
        EXPECT_EQ(Answer(session, name + "=1", false),
                  name + " cannot be set; variables are [VA] to [VZ], and LIST");
    }
    for (const auto& [line, message] :
         Rows("[VA]= -> Syntax error; [VA]=1/0 -> Invalid parameter(s); "
              "[VA]=[1 2;3] -> The rows of a matrix must have one length; "
              "[VA]=[1 2;] -> The rows of a matrix must have one length; "
              "[VA]=[1 2x] -> \"2x\" is no number; [VA]=[1,5] -> \"1,5\" is no number; "
              "[VA]=[1e999] -> \"1e999\" is too large; [VA]=[] -> A matrix has 1 to 30 rows and columns; " +
              wide +
              "] -> A matrix has 1 to 30 rows and columns; [VA]=[1 2 -> A matrix ends in \"]\"; "
              "[VA]=[1 2][3] -> \"2][3\" is no number; LIST=[1 2 -> \"[1\" is no number; "
              "LIST= -> A list holds 1 to 65535 numbers; LIST=1 2+3 -> \"2+3\" is no number; "
              "LIST=inv([VB]) -> A list is a matrix of one column; 1=2 -> Syntax error; "
              "[VA]*2=3 -> Syntax error; sin([VB]) -> Syntax error; inv([VC]) -> Matrix inversion error; "
              "[VB]+1 -> Matrix addition error")) {
        EXPECT_EQ(Answer(session, line, false), message) << line;
    }
    EXPECT_EQ(Answer(session, "[VA]"), "0");  // No failure has set it.
    EXPECT_EQ(Answer(session, "[VB]"), "[2 0;0 2]");
    SetMatrixOperators({});
}

class Pipe {
  public:
    Pipe() { EXPECT_EQ(pipe(ends_), 0); }
    ~Pipe() {
        close(ends_[0]);
        CloseWriter();
    }
    [[nodiscard]] int Reader() const { return ends_[0]; }
    [[nodiscard]] int Writer() const { return ends_[1]; }
    void CloseWriter() {
        if (ends_[1] >= 0) close(ends_[1]);
        ends_[1] = -1;
    }
    void Write(std::string_view text) {
        EXPECT_EQ(write(ends_[1], text.data(), text.size()), static_cast<ssize_t>(text.size()));
    }
    std::string ReadAll() {
        CloseWriter();
        std::string text;
        char block[4096];
        for (ssize_t length; (length = read(ends_[0], block, sizeof block)) > 0;) {
            text.append(block, static_cast<std::size_t>(length));
        }
        return text;
    }

  private:
    int ends_[2] = {-1, -1};
};

TEST_F(ConsoleTest, BatchAnswersEachLineInOrder) {
    ConsoleSession session(Parse({}).options);
    Pipe input, output, errors;
    input.Write("1+1\r\n\n   \n[ans]*3\n1+\n7");
    input.CloseWriter();
    EXPECT_FALSE(RunBatch(session, input.Reader(), output.Writer(), errors.Writer()));
    EXPECT_EQ(output.ReadAll(), "2\n6\n7\n");
    EXPECT_EQ(errors.ReadAll(), "Syntax error\n");
    // Lines that the reading blocks cut in two.
    const std::filesystem::path path = ::testing::TempDir() + "/quorix_batch_lines";
    std::string expected;
    {
        std::ofstream file(path);
        for (int i = 0; i < 20000; ++i) {
            file << i << "+1\n";
            expected += std::to_string(i + 1) + "\n";
        }
    }
    const std::filesystem::path results = ::testing::TempDir() + "/quorix_batch_results";
    const int lines = open(path.c_str(), O_RDONLY);
    const int written = open(results.c_str(), O_RDWR | O_CREAT | O_TRUNC, 0600);
    EXPECT_TRUE(RunBatch(session, lines, written, STDERR_FILENO));
    close(lines);
    close(written);
    std::ifstream file(results);
    std::string content{std::istreambuf_iterator<char>(file), {}};
    std::erase(content, ',');
    EXPECT_EQ(content, expected);
    std::filesystem::remove(path);
    std::filesystem::remove(results);
}

struct ProgramRun {
    int status = -1;
    std::string output, errors;
};

ProgramRun RunProgram(std::vector<std::string> arguments, std::string_view input) {
    Pipe in, out, err;
    const pid_t child = fork();
    if (child == 0) {
        dup2(in.Reader(), STDIN_FILENO);
        dup2(out.Writer(), STDOUT_FILENO);
        dup2(err.Writer(), STDERR_FILENO);
        in.CloseWriter();
        std::vector<char*> argv = {const_cast<char*>("quorix-calc")};
        for (std::string& argument : arguments) argv.push_back(argument.data());
        argv.push_back(nullptr);
        execv(QUORIX_CALC, argv.data());
        _exit(127);
    }
    in.Write(input);
    in.CloseWriter();
    ProgramRun run;
    run.output = out.ReadAll();
    run.errors = err.ReadAll();
    waitpid(child, &run.status, 0);
    run.status = WEXITSTATUS(run.status);
    return run;
}

TEST_F(ConsoleTest, TheProgramTellsSuccessByItsStatus) {
    const struct {
        std::vector<std::string> arguments;
        std::string_view input;
        int status;
        std::string_view output, errors;
    } rows[] = {
        {{"1÷3+2"}, "", 0, "2.33333333333333333333333333333333\n", ""},
        {{"-3+5"}, "", 0, "2\n", ""},
        {{"1/0"}, "", 1, "", "Invalid parameter(s)\n"},
        {{}, "1+2\n[ans]+1\n", 0, "3\n4\n", ""},
        {{}, "[VA]=[1 2;3 4]\ndet([VA])\n", 0, "[1 2;3 4]\n-2\n", ""},
        {{}, "1+2\n(\n", 1, "3\n", "Syntax error\n"},
        {{"--solve", "1 -3 2"}, "", 0, "X_1=1=1\nX_2=2=2\n", ""},
        {{"--solve=2 1 5; 1 −1 1"}, "", 0, "X_1=2=2\nX_2=1=1\n", ""},
        {{"--solve", "1 1 1"}, "", 1, "\\text{Cannot be solved!}\n", ""},
        {{"--locale", "european", "--solve", "2√(9)×0,5 -4,5"}, "", 0, "X=3=3\n", ""},
        {{"--locale", "european", "--tex", "1,5+gcd(4;6)"}, "", 0, "1.5+gcd\\left( 4,6 \\right)\n", ""},
        {{"--solve", "2 x 5; 1 -1 1"}, "", 1, "Invalid parameters. Please re-enter!\n", ""},
        {{"--tex", "1÷3+2√(x)"}, "", 0, "\\frac{1}{3}+\\sqrt{x}\n", ""},
        {{"--picture", "/nowhere/picture.png", "("}, "", 1, "", ""},
        {{"--digits", "none"}, "", 2, "", "quorix-calc: option --digits does not take \"none\"\n"},
        {{"--version"}, "", 0, "quorix-calc ", ""},
        {{"--help"}, "", 0, "Usage: quorix-calc", ""}};
    for (const auto& row : rows) {
        const ProgramRun run = RunProgram(row.arguments, row.input);
        EXPECT_EQ(run.status, row.status) << row.output;
        EXPECT_TRUE(run.output.starts_with(row.output)) << run.output;
        EXPECT_TRUE(run.errors.starts_with(row.errors)) << run.errors;
    }
}

// The editor sets the terminal to single keys a moment after it has written the prompt.
bool IsRaw(int terminal) {
    termios modes{};
    return tcgetattr(terminal, &modes) != 0 || (modes.c_lflag & ICANON) == 0;
}

TEST_F(ConsoleTest, ThePromptEditsAndKeepsAHistory) {
    const std::filesystem::path home = std::filesystem::path(::testing::TempDir()) / "quorix_prompt";
    std::filesystem::remove_all(home);
    int terminal = -1;
    const pid_t child = forkpty(&terminal, nullptr, nullptr, nullptr);
    if (child == 0) {
        setenv("XDG_DATA_HOME", home.c_str(), 1);
        setenv("TERM", "vt100", 1);
        execl(QUORIX_CALC, "quorix-calc", static_cast<char*>(nullptr));
        _exit(127);
    }
    // 21 with the 1 deleted, the line of before recalled, end of input. Each is typed when the answer before
    // it and a new prompt have come: between lines the terminal is in another mode.
    struct Step {
        std::string_view expected, keys;
    };
    const Step steps[] = {{"", "21\b+40\r"}, {"\n42\r\n", "\x10*2\r"}, {"\n82\r\n", "\x04"}};
    constexpr int kPatience = 20000;  // Milliseconds.
    std::size_t step = 0;
    std::string screen;
    char block[1024];
    pollfd waiting{terminal, POLLIN, 0};
    while (poll(&waiting, 1, kPatience) > 0) {
        const ssize_t length = read(terminal, block, sizeof block);
        if (length <= 0) break;
        screen.append(block, static_cast<std::size_t>(length));
        if (step == std::size(steps)) continue;
        const std::size_t answer = screen.find(steps[step].expected);
        if (answer == std::string::npos || screen.find("> ", answer) == std::string::npos) continue;
        while (!IsRaw(terminal)) usleep(1000);
        const std::string_view keys = steps[step++].keys;
        EXPECT_EQ(write(terminal, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
    }
    close(terminal);  // Hangs up on a program that still waits.
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0) << ::testing::PrintToString(screen);
    EXPECT_THAT(screen, HasSubstr("\n42\r\n"));
    EXPECT_THAT(screen, HasSubstr("\n82\r\n"));
    std::ifstream file(home / "quorix" / "history");
    const std::string history{std::istreambuf_iterator<char>(file), {}};
    EXPECT_THAT(history, HasSubstr("2+40\n"));
    EXPECT_THAT(history, HasSubstr("2+40*2\n"));
    std::filesystem::remove_all(home);
}

TEST_F(ConsoleTest, TheHistoryLiesInTheDataFolder) {
    setenv("XDG_DATA_HOME", "/data", 1);
    EXPECT_EQ(HistoryPath(), "/data/quorix/history");
    setenv("XDG_DATA_HOME", "relative", 1);
    setenv("HOME", "/home/user", 1);
    EXPECT_EQ(HistoryPath(), "/home/user/.local/share/quorix/history");
    unsetenv("XDG_DATA_HOME");
    unsetenv("HOME");
    EXPECT_EQ(HistoryPath(), "");
}

}  // namespace
}  // namespace quorix
