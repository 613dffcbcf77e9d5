#include "matrix/matrix_store.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

#include "engine/eval_matrix.h"
#include "matrix/fixed_text.h"
#include "matrix/matrix_operators.h"
#include "matrix/statistics_list.h"
#include "platform/files.h"
#include "support/engine_fixture.h"
#include "support/temporary_folder.h"

namespace quorix {
namespace {

using quorix::testing::TemporaryFolder;

class DataStoreTest : public EngineTest {
  protected:
    MatrixLoad LoadMatrices(std::string_view text) {
        std::filesystem::remove(folder_ / "matrix.dat.bad");
        folder_.Write("matrix.dat", text);
        return store_.Load(folder_ / "matrix.dat");
    }
    StatisticsLoad LoadList(std::string_view text) {
        std::filesystem::remove(folder_ / "statistics.dat.bad");
        folder_.Write("statistics.dat", text);
        return LoadStatistics(folder_ / "statistics.dat");
    }
    [[nodiscard]] std::string Text(std::string_view name) const { return folder_.Read(name); }
    [[nodiscard]] bool IsKept(std::string_view name) const {
        return std::filesystem::exists(folder_ / (std::string(name) + ".bad"));
    }
    /// "VA 2x1: 1 2; ..." of the store.
    [[nodiscard]] std::string List() const {
        std::string text;
        for (std::size_t i = 0; i < store_.Count(); ++i) {
            const CalcValue& matrix = store_.MatrixAt(i);
            text += (i > 0 ? "; " : "") + Narrow(store_.NameAt(i)) + " " + std::to_string(matrix.rows) + "x" +
                    std::to_string(matrix.cols) + ":";
            for (const double element : matrix.data) text += " " + CellText(element);
        }
        return text;
    }
    static std::string Items() {
        std::string text;
        for (const double item : StatisticsItems()) text += CellText(item) + " ";
        return text;
    }

    TemporaryFolder folder_;
    MatrixStore store_;
};

TEST_F(DataStoreTest, MatricesAreWrittenInTheFilesForm) {
    ASSERT_TRUE(store_.New(2, 2, 2));
    ASSERT_TRUE(store_.New(27, 1, 3));
    for (const auto& [row, col, value] : {std::tuple{0, 0, 3.0}, {0, 1, 2.5}, {1, 0, -0.0}, {1, 1, -4e-9}}) {
        ASSERT_TRUE(store_.SetElement(0, row, col, value));
    }
    ASSERT_TRUE(store_.Save(folder_ / "matrix.dat"));
    EXPECT_EQ(Text("matrix.dat"), "2\r\n2 2 2\r\n3 2.50000000 \r\n0 0.00000000 \r\n27 1 3\r\n0 0 0 \r\n");
    std::string list = List();
    EXPECT_EQ(store_.Load(folder_ / "matrix.dat"), MatrixLoad::good);
    EXPECT_EQ(List(), list.replace(list.find("0 0.00000000"), 12, "0 0"));
    SetMatrixOperators(MatrixOperatorTable());
    EXPECT_EQ(Evaluate("det([VA])", 10, EvaluationMode::matrix), "0");
    SetMatrixOperators({});
    store_.DeleteAll();
    ASSERT_TRUE(store_.Save(folder_ / "matrix.dat"));
    EXPECT_EQ(Text("matrix.dat"), "0\r\n");
    EXPECT_EQ(store_.Load(folder_ / "matrix.dat"), MatrixLoad::good);
    EXPECT_FALSE(IsKept("matrix.dat"));
}

TEST_F(DataStoreTest, MatrixFilesOfEveryShapeAreRead) {
    const std::string longRow = "2 1 2\r\n1 " + std::string(2050, '7') + " \r\n3 1 1\r\n5 \r\n";
    const std::string columns = [] {
        std::string text = "1\n2 1 30\n";
        for (int i = 0; i < 40; ++i) text += "1.25 ";
        return text;
    }();
    const struct {
        std::string text;
        MatrixLoad outcome;
        std::string_view list;
    } rows[] = {
        {"1\r\n2 1 2\r\n1 2 \r\n", MatrixLoad::good, "VA 1x2: 1 2"},
        {"1\n2 1 2 trailing\n1 +2 3 4\n", MatrixLoad::good, "VA 1x2: 1 2"},
        {"2\r\n2 1 3\r\n1 \r\n3 1 1\r\n9 \r\n", MatrixLoad::good, "VA 1x3: 1 0 0; VB 1x1: 9"},
        {"2\r\n2 1 1\r\n1 \r\n2 1 1\r\n5 \r\n", MatrixLoad::good, "VA 1x1: 5"},
        {"26\r\n2 1 1\r\n1 \r\n", MatrixLoad::skipped, ""},
        {"-1\r\n", MatrixLoad::skipped, ""},
        {"99999999999999\r\n", MatrixLoad::skipped, ""},
        // The head behind a record that is skipped is read from its rows.
        {"2\r\n2 31 1\r\n3 1 2\r\n7 8 \r\n", MatrixLoad::skipped, "VB 1x2: 7 8"},
        {"2\r\n30 1 1\r\n3 1 1\r\n4 \r\n", MatrixLoad::skipped, "VB 1x1: 4"},
        {"2\r\n2 0 1\r\n3 1 31\r\n", MatrixLoad::skipped, ""},
        {"2\r\n2 1 1\r\n4 \r\n", MatrixLoad::damaged, "VA 1x1: 4"},
        {"1\r\n2 3 1\r\n4 \r\n", MatrixLoad::damaged, "VA 3x1: 4 0 0"},
        {"1\r\n2 1 2\r\nabc 2 \r\n", MatrixLoad::damaged, "VA 1x2: 0 2"},
        {"1\r\n2 1 1\r\n1e999 \r\n", MatrixLoad::damaged, "VA 1x1: 0"},
        {"1\r\n2.5 1 1\r\n1 \r\n", MatrixLoad::damaged, ""},
        {"x", MatrixLoad::damaged, ""},
        {"", MatrixLoad::damaged, ""},
        {std::string(3000, '\0'), MatrixLoad::damaged, ""},
        {"+-1\r\n", MatrixLoad::damaged, ""},
        {"2\r\n" + longRow, MatrixLoad::damaged, "VA 1x2: 1 0; VB 1x1: 5"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(LoadMatrices(row.text), row.outcome) << row.text.substr(0, 60);
        EXPECT_EQ(List(), row.list) << row.text.substr(0, 60);
        EXPECT_EQ(IsKept("matrix.dat"), row.outcome != MatrixLoad::good) << row.text.substr(0, 60);
        EXPECT_EQ(Text(IsKept("matrix.dat") ? "matrix.dat.bad" : "matrix.dat"), row.text);
    }
    EXPECT_EQ(LoadMatrices(columns), MatrixLoad::good);
    EXPECT_EQ(store_.MatrixAt(0).cols, 30);
    std::filesystem::remove(folder_ / "matrix.dat");
    EXPECT_EQ(store_.Load(folder_ / "matrix.dat"), MatrixLoad::good);
    EXPECT_EQ(store_.Count(), 0U);
    EXPECT_FALSE(store_.Save(folder_ / "absent/matrix.dat"));
    folder_.Write("matrix.dat", "");
    std::filesystem::resize_file(folder_ / "matrix.dat", kLargestFile + 1);
    EXPECT_EQ(store_.Load(folder_ / "matrix.dat"), MatrixLoad::damaged)
        << "not to be replaced by an empty list";
    EXPECT_TRUE(IsKept("matrix.dat"));
}

TEST_F(DataStoreTest, TheEditorsCommandsKeepTheLimits) {
    EXPECT_FALSE(store_.New(1, 2, 2)) << "no user's variable";
    EXPECT_FALSE(store_.New(29, 2, 2));
    EXPECT_FALSE(store_.New(2, 0, 2));
    EXPECT_FALSE(store_.New(2, 2, 16));
    EXPECT_EQ(store_.FreeSlots().size(), 26U);
    ASSERT_TRUE(store_.New(2, 2, 3));
    ASSERT_TRUE(store_.SetElement(0, 1, 2, 7));
    EXPECT_FALSE(store_.SetElement(0, 2, 0, 7));
    EXPECT_FALSE(store_.SetElement(0, 0, -1, 7));
    EXPECT_FALSE(store_.SetElement(0, 0, 0, NAN));
    EXPECT_FALSE(store_.SetElement(1, 0, 0, 1));
    ASSERT_TRUE(store_.CopyTo(0, 5));
    EXPECT_EQ(List(), "VA 2x3: 0 0 0 0 0 7; VD 2x3: 0 0 0 0 0 7");
    ASSERT_TRUE(store_.Resize(0, 3, 2));
    ASSERT_TRUE(store_.Resize(1, 2, 4));
    EXPECT_FALSE(store_.Resize(1, 31, 4));
    EXPECT_EQ(List(), "VA 3x2: 0 0 0 0 0 0; VD 2x4: 0 0 0 0 0 0 7 0");
    store_.Clear(1);
    EXPECT_EQ(List(), "VA 3x2: 0 0 0 0 0 0; VD 2x4: 0 0 0 0 0 0 0 0");
    store_.Delete(0);
    EXPECT_EQ(Variable(2).kind, KIND_REAL);
    SetVariableNumber(5, QComplex{});
    EXPECT_EQ(store_.FileText(), "0\r\n") << "no longer a matrix";
    store_.Refresh();
    EXPECT_EQ(store_.Count(), 0U);
    for (const int slot : store_.FreeSlots()) store_.New(slot, 1, 1);
    EXPECT_EQ(store_.Count(), kMostMatrices) << "a file of more would not be read";
    EXPECT_TRUE(store_.New(2, 2, 2)) << "in the place of one";
    store_.DeleteAll();
    EXPECT_EQ(Variable(3).kind, KIND_REAL);
}

TEST_F(DataStoreTest, TextsOfMatrices) {
    EXPECT_EQ(MatrixSizeLabel(2, 15), "Size: 2x15");
    EXPECT_EQ(MatrixColumnHead(3), "3    ");
    EXPECT_EQ(MatrixRowHead(3) + MatrixRowHead(12), " 312");
    EXPECT_EQ(MatrixMenu().size(), static_cast<std::size_t>(MatrixCommand::deleteAll) + 1);
    EXPECT_EQ(MatrixResultTeX(CalcValue{}), "[VANS]=\\left[?\\right]");
    EXPECT_EQ(MatrixResultTeX({KIND_MATRIX, {}, 2, 2, {1, -0.001, 2.345, 4}}),
              "[VANS]=\\left[\\begin{matrix}1.00 & 0.00 \\\\ 2.35 & 4.00 \\\\ \\end{matrix}\\right]");
    EXPECT_EQ(CellText(1e300).size(), 301U);
    EXPECT_EQ(CellText(-INFINITY), "-inf");
}

TEST_F(DataStoreTest, TheListIsReadWrittenAndEdited) {
    EXPECT_EQ(StatisticsCountLabel(), "N : 0");
    ASSERT_TRUE(SaveStatistics(folder_ / "statistics.dat"));
    EXPECT_EQ(Text("statistics.dat"), "");
    EXPECT_EQ(LoadStatistics(folder_ / "statistics.dat"), StatisticsLoad::none);
    EXPECT_FALSE(IsKept("statistics.dat"));
    EXPECT_TRUE(InsertItem(0, 3));
    EXPECT_TRUE(InsertItem(0, 2.5));
    EXPECT_TRUE(InsertItem(2, -1));
    EXPECT_FALSE(InsertItem(4, 1));
    EXPECT_FALSE(InsertItem(0, INFINITY));
    EXPECT_TRUE(SetItem(1, 4));
    EXPECT_FALSE(SetItem(3, 4));
    EXPECT_EQ(Evaluate("sum()"), "5.5");
    EXPECT_EQ(StatisticsCountLabel(), "N : 3");
    ASSERT_TRUE(SaveStatistics(folder_ / "statistics.dat"));
    EXPECT_EQ(Text("statistics.dat"), "3\r\n2.50000000 4 -1 \r\n");
    EXPECT_TRUE(DeleteItem(0));
    EXPECT_FALSE(DeleteItem(2));
    EXPECT_EQ(Items(), "4 -1 ");
    EXPECT_EQ(LoadStatistics(folder_ / "statistics.dat"), StatisticsLoad::good);
    EXPECT_EQ(Items(), "2.50000000 4 -1 ");
    ClearItems();
    EXPECT_EQ(Items(), "");
    while (InsertItem(0, 1)) {
    }
    EXPECT_EQ(StatisticsItems().size(), kMostItems);
    EXPECT_EQ(LoadMatrices("1\n29 1 1\n7\n"), MatrixLoad::good);
    SetVariableMatrix(SLOT_LIST, 31, 1, std::vector<double>(31, 2.0));
    EXPECT_EQ(store_.FileText(), "0\r\n") << "its rows would be read as heads";
}

TEST_F(DataStoreTest, ListFilesOfEveryShapeAreRead) {
    std::string longList = "512\r\n";
    for (int i = 0; i < 512; ++i) longList += "1234567.12345678 ";
    const struct {
        std::string text;
        StatisticsLoad outcome;
        std::string_view items;
    } rows[] = {
        {"2\r\n1 2 \r\n", StatisticsLoad::good, "1 2 "},
        {"3\n1 2", StatisticsLoad::good, "1 2 0 "},
        {"1\r\n1 2 3 \r\n", StatisticsLoad::good, "1 "},
        {"1\r\n\r\n", StatisticsLoad::good, "0 "},
        {"2\r\n1 x2 \r\n", StatisticsLoad::damaged, "1 0 "},
        {"513\r\n1 \r\n", StatisticsLoad::none, "8 "},
        {"0\r\n1 \r\n", StatisticsLoad::none, "8 "},
        {"-3\r\n1 \r\n", StatisticsLoad::none, "8 "},
        {"2\r\n", StatisticsLoad::none, "8 "},
        {"two\r\n1 2 \r\n", StatisticsLoad::none, "8 "},
    };
    for (const auto& row : rows) {
        ClearItems();
        InsertItem(0, 8);
        EXPECT_EQ(LoadList(row.text), row.outcome) << row.text;
        EXPECT_EQ(Items(), row.items) << row.text;
        EXPECT_EQ(IsKept("statistics.dat"), row.outcome != StatisticsLoad::good) << row.text;
    }
    EXPECT_EQ(LoadList(longList), StatisticsLoad::damaged);
    EXPECT_EQ(StatisticsItems()[480], 1234567.12345678);
    EXPECT_EQ(StatisticsItems()[481], 0) << "no value is cut in two";
    EXPECT_EQ(StatisticsItems().size(), 512U);
}

}  // namespace
}  // namespace quorix
