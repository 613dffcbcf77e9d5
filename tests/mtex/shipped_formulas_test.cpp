// The formula library is typeset by the rasteriser, which knows the commands of its list alone.

#include <gtest/gtest.h>

#include "mtex/tex_guard.h"
#include "reference/formula_library.h"

namespace quorix::mtex {
namespace {

TEST(ShippedFormulas, UseCommandsOfTheList) {
    const FormulaLibrary library(std::filesystem::path(QUORIX_SOURCE_DIR) / "assets" / "Formulas");
    const auto index = library.ReadIndex();
    ASSERT_FALSE(index.empty());
    for (const FormulaIndexEntry& entry : index) {
        const auto description = library.ReadDescription(entry.id, entry.descriptionOffset);
        const auto detail = library.ReadDetail(entry.id, entry.detailOffset);
        ASSERT_TRUE(description && detail);
        EXPECT_TRUE(IsHarmlessTex(description->mime)) << description->mime;
        for (const FormulaParameter& parameter : detail->parameters) {
            EXPECT_TRUE(IsHarmlessTex(parameter.label)) << parameter.label;
            EXPECT_TRUE(parameter.unit.empty() || IsHarmlessTex(parameter.unit)) << parameter.unit;
        }
    }
}

}  // namespace
}  // namespace quorix::mtex
