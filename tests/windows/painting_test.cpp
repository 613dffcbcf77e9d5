#include <gtest/gtest.h>

#include <set>

#include "platform/qt/fonts.h"
#include "platform/qt/pictures.h"
#include "windows/screen_rig.h"

namespace quorix {
namespace {

using testing::KeepScreenshot;
using testing::kLandscape2;
using testing::kPortrait1;
using testing::kPortrait2;
using testing::ScreenRig;

TEST(Screens, AreKeptForTheEye) {
    const struct {
        const char* name;
        DeviceScreen screen;
        const char16_t* skin;
        int category;
        const char* script;
    } rows[] = {
        {"arithmetic-default", kPortrait2, u"default.inf", 0, "#42 27)*#54 30)+a/7"},
        {"arithmetic-default-1", kPortrait1, u"default.inf", 0, "#42 27)*#54 30)+a/7"},
        {"arithmetic-black", kPortrait2, u"Black Skin.inf", 0, "1/3="},
        {"trigonometry", kPortrait2, u"default.inf", 1, "#143 2*#54 p/6)+#52 0)="},
        {"base", kPortrait2, u"default.inf", 2, "#148 #139 A5 #69 3C #70 F0 ="},
        {"landscape", kLandscape2, u"default.inf", 0, "123456789012345678(1+2i)^2-5#40 32)/2s"},
        {"square", DeviceScreen{480, 480}, u"default.inf", 0, "1+2"},
    };
    for (const auto& row : rows) {
        ScreenRig rig(row.screen, row.skin);
        ASSERT_TRUE(rig.loaded);
        rig.calculator.Enter(row.category);
        rig.calculator.Type(row.script);
        const QImage picture = rig.Paint();
        EXPECT_FALSE(picture.isNull());
        KeepScreenshot(picture, row.name);
    }
}

}  // namespace
}  // namespace quorix
