#include "reference/formula_library.h"

#include <gtest/gtest.h>

#include "platform/files.h"
#include "reference/formula_files.h"
#include "reference/formula_text.h"
#include "support/temporary_folder.h"

namespace quorix {
namespace {

namespace fs = std::filesystem;
using testing::TemporaryFolder;

constexpr std::string_view kFiles[] = {"indexfor.dat", "fordes.dat", "fordetail.dat", "fortree.dat"};

constexpr std::string_view kSmall =
    "A comment = with a sign\r\n"
    "*\r\nFORID = 1.2\r\n ForName = Lines\r\n"
    "***\r\nforid=1.2.3\r\nForType = 7\r\nForName = A = b\r\nForDes = About\r\nForMime = a=\\frac{b}{c}\r\n"
    "Para = \"a\" \"first\" \"m\" \"a\" \"\" tail \"\r\n"
    "Para= \"b\"\"second\" \"^o\" \"b\" \"1\"\r\n"
    "For = \"b\" \"\"\r\nImage = \"one.png\" \"\"\r\n";

std::string FormulaText(std::string_view id, std::string_view name) {
    return "***\nForId = " + std::string(id) + "\nForType = 1\nForName = " + std::string(name) +
           "\nPara = \"x\" \"\" \"\" \"x\" \"\"\nFor = \"\"\nImage = \"\"\n";
}

std::vector<std::string> AllFiles(const TemporaryFolder& folder, const std::string& prefix = {}) {
    std::vector<std::string> contents;
    for (const std::string_view name : kFiles) {
        contents.push_back(folder.Read(prefix + std::string(name)));
    }
    return contents;
}

/// A library in a folder of its own, and imports from texts.
struct Rig {
    TemporaryFolder folder;
    FormulaLibrary library{folder / "Formulas"};

    FormulaImportResult Import(std::string_view text, bool append) {
        folder.Write("import.txt", text);
        return library.ImportFormulas(folder / "import.txt", append);
    }
    std::vector<std::string> Files() const { return AllFiles(folder, "Formulas/"); }
    std::optional<FormulaDescription> Description(FormulaId id) const {
        const auto index = library.ReadIndex();
        const FormulaIndexEntry* entry = FindFormula(index, id);
        return entry ? library.ReadDescription(id, entry->descriptionOffset) : std::nullopt;
    }
};

TEST(FormulaIdentifier, PathsArePackedByteByByte) {
    const struct {
        std::string_view text;
        FormulaId id;
        std::string_view back;
    } rows[] = {
        {"1.2", 0x01020000, "1.2"},
        {"1.0.3", 0x01000300, "1.0.3"},
        {" 258.1x", 0x02010000, "2.1"},
        {"-1.2.3.4.5", 0xFF020304, "255.2.3.4"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ParseFormulaId(row.text), row.id) << row.text;
        EXPECT_EQ(FormulaIdText(row.id), row.back);
    }
}

TEST(FormulaLibrary, ImportWritesTheFourFilesByteByByte) {
    using namespace std::string_literals;
    Rig rig;
    const FormulaImportResult result = rig.Import(kSmall, true);
    ASSERT_TRUE(result.done) << result.problem.message;
    EXPECT_EQ(result.formulas, 1U);
    const std::vector<std::string> expected = {
        "\1\0\0\0\0\3\2\1\0\0\0\0\0\0\0\0"s,
        "\0\3\2\1\5\0\0\0A = b\5\0\0\0About\x0D\0\0\0a=\\frac{b}{c}\1\0\0\0\7\0\0\0one.png"s,
        "\0\3\2\1\2\0\0\0"s
        "\1\0\0\0a\5\0\0\0first\1\0\0\0m\1\0\0\0a\0\0\0\0"s
        "\1\0\0\0b\6\0\0\0second\2\0\0\0^o\1\0\0\0b\1\0\0\0001"s
        "\2\0\0\0\1\0\0\0b\0\0\0\0"s,
        ".1 =Mathematic= 2\r\n.2 =Physics= 2\r\n.3 =Electric Engineering= 2\r\n.1.2 =Lines= 2\r\n"
        ".1.2.3 =A = b= 7\r\n",
    };
    EXPECT_EQ(rig.Files(), expected);
    const FormulaTree tree = rig.library.ReadTree();
    ASSERT_NE(tree.Find(0x01020300), nullptr);
    EXPECT_EQ(*tree.Find(0x01020300), (FormulaNode{0x01020300, "A = b", 7}));
    EXPECT_EQ(tree.ChildrenOf(0x01000000).size(), 1U);
    EXPECT_EQ(tree.Branch(0x01000000), (std::vector<FormulaId>{0x01000000, 0x01020000, 0x01020300}));
    EXPECT_EQ(tree.Search("A =").size(), 1U);
    EXPECT_FALSE(rig.library.ReadDescription(0x01020400, 0)) << "the record is another formula's";
}

TEST(FormulaLibrary, AppendsAndDeletesAndSortsByBytes) {
    Rig rig;
    const std::string text =
        FormulaText("1.20", "Twenty") + FormulaText("1.2", "Two") + FormulaText("1.3", "Three");
    ASSERT_TRUE(rig.Import(text, false).done);
    ASSERT_TRUE(rig.Import(text, true).done);
    EXPECT_EQ(rig.library.ReadIndex().size(), 6U);
    EXPECT_EQ(rig.library.ReadTree().Nodes().size(), 6U) << "three roots, and each formula once";
    const std::string before = rig.folder.Read("Formulas/fortree.dat");
    EXPECT_LT(before.find("Twenty"), before.find("Two"));
    ASSERT_TRUE(rig.library.DeleteFormulas({0x01020000, 0x01030000}, {true, false}));
    EXPECT_EQ(
        rig.folder.Read("Formulas/fortree.dat"),
        ".1 =Mathematic= 2\r\n.1.20 =Twenty= 1\r\n.1.20 =Twenty= 1\r\n.1.3 =Three= 1\r\n.1.3 =Three= 1\r\n"
        ".2 =Physics= 2\r\n.3 =Electric Engineering= 2\r\n");
    EXPECT_EQ(rig.library.ReadIndex().size(), 4U);
    EXPECT_FALSE(rig.Description(0x01020000));
    EXPECT_EQ(rig.Description(0x01030000)->name, "Three");
    EXPECT_EQ(rig.Description(0x01140000)->name, "Twenty");
    // Without append the text becomes the library.
    ASSERT_TRUE(rig.Import(FormulaText("2.1", "New"), false).done);
    EXPECT_EQ(rig.library.ReadIndex().size(), 1U);
}

TEST(FormulaLibrary, AFormulaWithoutImageIsLeftOut) {
    Rig rig;
    const std::string open = "***\nForId = 1.9\nForName = Open\nPara = \"q\" \"\" \"\" \"\" \"\"\n";
    ASSERT_TRUE(rig.Import(open + FormulaText("1.1", "Whole") + open, false).done);
    ASSERT_EQ(rig.library.ReadIndex().size(), 1U);
    const FormulaIndexEntry entry = rig.library.ReadIndex()[0];
    EXPECT_EQ(rig.library.ReadDetail(entry.id, entry.detailOffset)->parameters.size(), 1U);
}

TEST(FormulaLibrary, RefusedImportsChangeNothing) {
    Rig rig;
    ASSERT_TRUE(rig.Import(kSmall, false).done);
    const auto before = rig.Files();
    const std::string head = "***\nForId = 1.1\n";
    std::string many = head;
    for (std::size_t i = 0; i <= kMostFormulaEntries; ++i) {
        many += "Para = \"\"\"\"\"\"\"\"\"\"\n";
    }
    const struct {
        std::string text;
        std::size_t line;
    } rows[] = {
        {head + "ForDes = " + std::string(1015, 'x') + "\nImage = \"\"\n", 3},
        {head + std::string("ForName = a\0b\nImage = \"\"\n", 26), 3},
        {head + "Para = \"a\" \"b\" \"c\" \"d\" \"e\nImage = \"\"\n", 3},
        {head + "For = \"a\" \"b\nImage = \"\"\n", 3},
        {head + "Image = \"\n", 3},
        {head + "ForName = " + std::string(245, 'x') + "\nImage = \"\"\n", 4},
        {"***\nForName = a\nImage = \"\"\n", 3},
        {"*\nForName = a\n", 2},
        {many, kMostFormulaEntries + 3},
        {"no formula at all", 0},
        {"", 0},
    };
    for (const bool append : {false, true}) {
        for (const auto& row : rows) {
            const FormulaImportResult result = rig.Import(row.text, append);
            EXPECT_FALSE(result.done) << row.text.substr(0, 60);
            EXPECT_EQ(result.problem.line, row.line) << row.text.substr(0, 60);
            EXPECT_FALSE(result.problem.message.empty());
            EXPECT_EQ(rig.Files(), before);
        }
    }
    EXPECT_FALSE(rig.library.ImportFormulas(rig.folder / "none", true).done);
    rig.folder.Write("file", "");
    EXPECT_FALSE(FormulaLibrary(rig.folder / "file").ImportFormulas(rig.folder / "import.txt", false).done);
}

TEST(FormulaLibrary, DamagedFilesGiveRecordsOrNothing) {
    FormulaFiles files;
    AppendImport(files,
                 ParseFormulaImport({reinterpret_cast<const std::uint8_t*>(kSmall.data()), kSmall.size()}));
    const FormulaId id = 0x01020300;
    const auto description = ParseFormulaDescription(files.descriptions, id, 0);
    const auto detail = ParseFormulaDetail(files.details, id, 0);
    ASSERT_TRUE(description && detail);
    for (std::size_t size = 0; size < files.descriptions.size(); ++size) {
        EXPECT_FALSE(ParseFormulaDescription(std::span(files.descriptions).first(size), id, 0)) << size;
    }
    for (std::size_t size = 0; size < files.details.size(); ++size) {
        EXPECT_FALSE(ParseFormulaDetail(std::span(files.details).first(size), id, 0)) << size;
    }
    for (const std::uint32_t offset : {1U, 1000U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
        EXPECT_FALSE(ParseFormulaDescription(files.descriptions, id, offset));
        EXPECT_FALSE(ParseFormulaDetail(files.details, id, offset));
    }
    // Lengths and counts of minus one, and one above the limits, at each of their places.
    for (const std::size_t at : {4U, 8U, 13U, 22U, 27U}) {
        auto bytes = files.details;
        std::fill_n(bytes.begin() + static_cast<std::ptrdiff_t>(at), 4, std::uint8_t{0xFF});
        EXPECT_FALSE(ParseFormulaDetail(bytes, id, 0)) << at;
    }
    FormulaDetail wide;
    wide.solvedForms = {std::string(kLongestFormulaText + 1, 'x')};
    std::vector<std::uint8_t> bytes;
    AppendFormulaDetail(bytes, wide);
    EXPECT_FALSE(ParseFormulaDetail(bytes, 0, 0));

    const std::vector<std::uint8_t> index = FormulaIndexBytes(files.index);
    EXPECT_EQ(ParseFormulaIndex(index), files.index);
    EXPECT_FALSE(ParseFormulaIndex(std::span(index).first(3)));
    EXPECT_TRUE(ParseFormulaIndex(std::span(index).first(15))->empty());
    auto counted = index;
    counted[0] = 200;
    EXPECT_EQ(ParseFormulaIndex(counted)->size(), 1U) << "a count above what is there";
    counted[3] = 0x80;
    EXPECT_FALSE(ParseFormulaIndex(counted)) << "a negative count";
}

TEST(FormulaLibrary, DamagedLibrariesAreKeptAsideBeforeTheyAreRewritten) {
    Rig rig;
    ASSERT_TRUE(rig.Import(FormulaText("1.1", "One") + FormulaText("1.2", "Two"), false).done);
    const fs::path folder = rig.folder / "Formulas";
    fs::resize_file(folder / "fordes.dat", fs::file_size(folder / "fordes.dat") - 1);
    const std::string damaged = rig.folder.Read("Formulas/fordes.dat");
    ASSERT_TRUE(rig.library.DeleteFormulas({0x01010000}, {true}));
    EXPECT_TRUE(rig.library.ReadIndex().empty());
    EXPECT_EQ(rig.folder.Read("Formulas/fordes.dat.bad"), damaged);
    fs::resize_file(folder / "indexfor.dat", 2);
    EXPECT_FALSE(rig.library.DeleteFormulas({0x01020000}, {true}));
    EXPECT_TRUE(rig.Import(FormulaText("1.3", "Three"), true).done);
    EXPECT_EQ(fs::file_size(folder / "indexfor.dat.bad"), 2U);
    EXPECT_EQ(rig.Description(0x01030000)->name, "Three");
    fs::resize_file(folder / "fordes.dat", kLargestFile + 1);
    EXPECT_FALSE(rig.Import(FormulaText("1.4", "Four"), true).done);
    EXPECT_FALSE(rig.library.DeleteFormulas({0x01030000}, {true}));
    EXPECT_EQ(fs::file_size(folder / "fordes.dat"), kLargestFile + 1)
        << "what cannot be read is not replaced";
}

TEST(FormulaLibrary, AnInterruptedChangeIsFinishedOrForgotten) {
    Rig old;
    Rig next;
    ASSERT_TRUE(old.Import(kSmall, false).done);
    ASSERT_TRUE(next.Import(FormulaText("3.1", "Next"), false).done);
    const auto place = [&](const fs::path& folder, std::string_view name, std::string_view as) {
        fs::copy_file(next.folder / "Formulas" / name, folder / as, fs::copy_options::overwrite_existing);
    };
    // `written` files stand as temporary ones, and `renamed` of them in their place, in the order of writing.
    const std::string_view order[] = {"fordes.dat", "fordetail.dat", "fortree.dat", "indexfor.dat"};
    const struct {
        std::size_t written, renamed;
        bool finished;
    } rows[] = {{1, 0, false}, {3, 0, false}, {4, 0, true}, {4, 1, true}, {4, 3, true}};
    for (const auto& row : rows) {
        const TemporaryFolder folder;
        fs::copy(old.folder / "Formulas", folder.Path());
        for (std::size_t i = 0; i < row.written; ++i) {
            place(folder.Path(), order[i],
                  i < row.renamed ? std::string(order[i]) : "tmp_" + std::string(order[i]));
        }
        const FormulaLibrary library(folder.Path());
        EXPECT_EQ(AllFiles(folder), row.finished ? next.Files() : old.Files());
        EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), {}), 4);
    }
}

TEST(FormulaTree, OddLinesDoNoHarm) {
    const FormulaTree tree(
        ".1 =Root= 2\n\r\nno node\n.1.2.3 =Orphan= 1\r\n.1.2.3 =Again= 1\n.2 =\n= 2\n.0 =None= 2\n." +
        std::string(300, '1') + " =Long= 1\n.3 =No folder=x\n");
    ASSERT_EQ(tree.Nodes().size(), 3U);
    EXPECT_EQ(tree.ChildrenOf(0x01000000), (std::vector<FormulaNode>{{0x01020300, "Again", 1}}));
    EXPECT_EQ(tree.ChildrenOf(0).size(), 2U);
    EXPECT_EQ(RemoveFromFormulaTree("no node\n.1 =B= 1\n\r\n.1 =A= 1", std::vector<FormulaId>{0x02000000}),
              ".1 =A= 1\r\n.1 =B= 1\r\nno node\r\n");
}

TEST(FormulaText, UnitsAndSymbolsReadPlainly) {
    EXPECT_EQ(PlainFormulaText("kg/m^3"), u"kg/m³");
    EXPECT_EQ(PlainFormulaText("^o"), u"°");
    EXPECT_EQ(PlainFormulaText("\\mu m\\cdot K"), u"μm·K");
    EXPECT_EQ(PlainFormulaText("\\Delta l_{12}"), u"Δl12");
}

}  // namespace
}  // namespace quorix
