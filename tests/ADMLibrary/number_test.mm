#include "tests/ADMLibrary/support/ToolkitTest.h"

#include <climits>
#include <cmath>

namespace {

struct NumberTest : ToolkitTest {
    _Opaque_ADMItem* edit(float lowest, float highest, float value) {
        _Opaque_ADMItem* item = add(kADMTextEditType);
        sADMItem->SetMinFloatValue(item, lowest);
        sADMItem->SetMaxFloatValue(item, highest);
        sADMItem->SetFloatValue(item, value);
        return item;
    }
};

} // namespace

TEST_F(NumberTest, SettingShowsTheNumberUncheckedAndReadingClampsIt) {
    _Opaque_ADMItem* item = edit(0, 10, 25.5f);
    EXPECT_EQ(sADMItem->GetFloatValue(item), 10);
    EXPECT_EQ(shown(item), "25.5");
    sADMItem->SetMinFloatValue(item, 2); // shows the number that was read
    EXPECT_EQ(shown(item), "10");
    _Opaque_ADMItem* without_range = add(kADMTextEditType);
    put(without_range, "5");
    EXPECT_EQ(sADMItem->GetFloatValue(without_range), 0);
}

TEST_F(NumberTest, TextsAreReadAsNumbersInTheRange) {
    struct Case {
        const char* text;
        float as_float;
        int as_int;
    };
    // The range is -100 to 1000, the previous value 7.9.
    const Case cases[] = {
        {"12abc", 12, 12},    {"7.9", 7.9f, 7},
        {"  3", 3, 3},        {"-4.5", -4.5f, -4},
        {"1e2", 100, 1},      {".5", 0.5f, 7},
        {"1001", 1000, 1000}, {"-101", -100, -100},
        {"1e99", 1000, 1},    {"99999999999999999999", 1000, 1000},
        {"inf", 1000, 7},     {"-99999999999", -100, -100},
        {"abc", 7.9f, 7},     {"", 7.9f, 7},
        {"-", 7.9f, 7},       {"6 \u00e9", 6, 6},
        {"6 \u4e2d", 7.9f, 7} // not in Mac Roman
    };
    for (const Case& c : cases) {
        _Opaque_ADMItem* item = edit(-100, 1000, 7.9f);
        put(item, c.text);
        EXPECT_EQ(sADMItem->GetFloatValue(item), c.as_float) << c.text;
        sADMItem->SetFloatValue(item, 7.9f);
        put(item, c.text);
        EXPECT_EQ(sADMItem->GetIntValue(item), c.as_int) << c.text;
    }
}

TEST_F(NumberTest, NumbersBeyondIntegersAreClamped) {
    _Opaque_ADMItem* item = edit(-INFINITY, INFINITY, 3e30f);
    put(item, "none");
    EXPECT_EQ(sADMItem->GetIntValue(item), INT_MAX);
    sADMItem->SetFloatValue(item, NAN);
    put(item, "none");
    EXPECT_EQ(sADMItem->GetIntValue(item), 0);
    put(item, "-99999999999999999999999");
    EXPECT_EQ(sADMItem->GetIntValue(item), INT_MIN);
}

TEST_F(NumberTest, AtMost127BytesAreRead) {
    _Opaque_ADMItem* item = edit(0, 10, 1);
    put(item, (std::string(126, ' ') + "4").c_str());
    EXPECT_EQ(sADMItem->GetFloatValue(item), 4);
    put(item, (std::string(127, ' ') + "5").c_str());
    EXPECT_EQ(sADMItem->GetFloatValue(item), 4);
}

TEST_F(NumberTest, TheDefaultConversionsArePlain) {
    float value = 5;
    EXPECT_FALSE(sADMItem->DefaultTextToFloat(nullptr, "x1", &value));
    EXPECT_EQ(value, 5);
    EXPECT_TRUE(sADMItem->DefaultTextToFloat(nullptr, " 0x10 m", &value));
    EXPECT_EQ(value, 16);

    const std::pair<float, const char*> cases[] = {
        {1.5f, "1.5"},     {2, "2"},
        {100, "100"},      {0, "0"},
        {-0.0f, "-0"},     {-1000.125f, "-1000.125"},
        {1e-7f, "0"},      {1e-6f, "0.000001"},
        {INFINITY, "inf"}, {3e38f, "300000000549775575777803994281145270272"}};
    for (const auto& [number, printed] : cases) {
        char text[48];
        EXPECT_TRUE(sADMItem->DefaultFloatToText(nullptr, number, text, 0));
        EXPECT_STREQ(text, printed);
    }
}
