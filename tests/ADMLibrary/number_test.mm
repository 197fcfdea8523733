#include "tests/ADMLibrary/support/ToolkitTest.h"

#include <cmath>
#include <limits>

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

constexpr float kInfinity = std::numeric_limits<float>::infinity();

} // namespace

TEST_F(NumberTest, SettingShowsTheNumberUncheckedAndReadingClampsIt) {
    _Opaque_ADMItem* item = edit(0, 10, 25.5f);
    EXPECT_EQ(shown(item), "25.5");
    EXPECT_EQ(sADMItem->GetFloatValue(item), 10);
    EXPECT_EQ(shown(item), "25.5");
    sADMItem->SetMinFloatValue(item, 2); // shows the number as it was read
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
    // The range is -100 to 1000, the value before is 7.9.
    const Case cases[] = {
        {"12", 12, 12},
        {"12abc", 12, 12},
        {"7.9", 7.9f, 7},
        {"  3", 3, 3},
        {"-4.5", -4.5f, -4},
        {"1e2", 100, 1},
        {".5", 0.5f, 7},
        {"1001", 1000, 1000},
        {"-101", -100, -100},
        {"1e99", 1000, 1},
        {"99999999999999999999", 1000, 1000},
        {"-99999999999", -100, -100},
        {"inf", 1000, 7},
        {"abc", 7.9f, 7},
        {"", 7.9f, 7},
        {"-", 7.9f, 7},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        _Opaque_ADMItem* item = edit(-100, 1000, 7.9f);
        put(item, c.text);
        EXPECT_EQ(sADMItem->GetFloatValue(item), c.as_float);
        sADMItem->SetFloatValue(item, 7.9f);
        put(item, c.text);
        EXPECT_EQ(sADMItem->GetIntValue(item), c.as_int);
    }
}

TEST_F(NumberTest, AnIntegerReadIsStoredAndBoundsAreTruncated) {
    _Opaque_ADMItem* item = edit(0, 5.9f, 1);
    put(item, "9");
    EXPECT_EQ(sADMItem->GetIntValue(item), 5);
    put(item, "none");
    EXPECT_EQ(sADMItem->GetFloatValue(item), 5);
    sADMItem->SetFloatValue(item, -7.9f);
    put(item, "none");
    EXPECT_EQ(sADMItem->GetIntValue(item), -7);
    EXPECT_EQ(sADMItem->GetFloatValue(item), -7.9f);
}

TEST_F(NumberTest, NumbersBeyondIntegersAreHeldToTheirRange) {
    _Opaque_ADMItem* item = edit(-kInfinity, kInfinity, 3e30f);
    put(item, "none");
    EXPECT_EQ(sADMItem->GetIntValue(item), std::numeric_limits<int>::max());
    sADMItem->SetFloatValue(item, std::nanf(""));
    put(item, "none");
    EXPECT_EQ(sADMItem->GetIntValue(item), 0);
    EXPECT_TRUE(std::isnan(sADMItem->GetFloatValue(item)));
    put(item, "99999999999999999999999");
    EXPECT_EQ(sADMItem->GetIntValue(item), std::numeric_limits<int>::max());
}

TEST_F(NumberTest, AtMost127BytesOfMacRomanAreRead) {
    _Opaque_ADMItem* item = edit(0, 10, 1);
    put(item, (std::string(126, ' ') + "4").c_str());
    EXPECT_EQ(sADMItem->GetFloatValue(item), 4);
    put(item, (std::string(127, ' ') + "5").c_str());
    EXPECT_EQ(sADMItem->GetFloatValue(item), 4);
    put(item, "6 caf\u00e9");
    EXPECT_EQ(sADMItem->GetFloatValue(item), 6);
    put(item, "7 \u4e2d"); // no character of Mac Roman
    EXPECT_EQ(sADMItem->GetFloatValue(item), 6);
    EXPECT_EQ(sADMItem->GetIntValue(item), 6);
}

TEST_F(NumberTest, AProcedureOfTheItemsOwnReadsTheText) {
    _Opaque_ADMItem* item = edit(0, 10, 1);
    sADMItem->SetTextToFloatProc(
        item, [](_Opaque_ADMItem*, const char* text, float* value) -> unsigned char {
            *value = text[0] == 'h' ? 0.5f : 99;
            return text[0] != 'x';
        });
    put(item, "half");
    EXPECT_EQ(sADMItem->GetFloatValue(item), 0.5f);
    put(item, "lots");
    EXPECT_EQ(sADMItem->GetFloatValue(item), 10);
    put(item, "xyz");
    EXPECT_EQ(sADMItem->GetFloatValue(item), 10);
    put(item, "3");
    EXPECT_EQ(sADMItem->GetIntValue(item), 3);
}

TEST_F(NumberTest, ItemsWithoutAControlKeepTheirNumber) {
    _Opaque_ADMItem* item = add_text(kADMTextStaticType, "12");
    sADMItem->SetMaxFloatValue(item, 100);
    sADMItem->SetFloatValue(item, 3.5f);
    EXPECT_EQ(sADMItem->GetFloatValue(item), 3.5f);
    EXPECT_EQ(sADMItem->GetIntValue(item), 3);
    EXPECT_STREQ([[label_of(item) stringValue] UTF8String], "12");
}

TEST_F(NumberTest, ASliderIsSetAndReadAsANumber) {
    _Opaque_ADMItem* item = add(kADMSliderType);
    sADMItem->SetMaxFloatValue(item, 1);
    sADMItem->SetFloatValue(item, 0.25f);
    EXPECT_EQ([control_of(item) floatValue], 0.25f);
    EXPECT_EQ(sADMItem->GetFloatValue(item), 0.25f);
}

TEST_F(NumberTest, TheDefaultConversionsArePlain) {
    float value = 5;
    EXPECT_FALSE(sADMItem->DefaultTextToFloat(nullptr, "x1", &value));
    EXPECT_EQ(value, 5);
    EXPECT_TRUE(sADMItem->DefaultTextToFloat(nullptr, " 0x10 m", &value));
    EXPECT_EQ(value, 16);

    struct Case {
        float value;
        const char* text;
    };
    const Case cases[] = {
        {1.5f, "1.5"},
        {2, "2"},
        {100, "100"},
        {0.25f, "0.25"},
        {-0.0f, "-0"},
        {1e-7f, "0"},
        {0, "0"},
        {-1000.125f, "-1000.125"},
        {0.000001f, "0.000001"},
        {kInfinity, "inf"},
        {std::numeric_limits<float>::max(), "340282346638528859811704183484516925440"}};
    for (const Case& c : cases) {
        char text[48];
        EXPECT_TRUE(sADMItem->DefaultFloatToText(nullptr, c.value, text, 0));
        EXPECT_STREQ(text, c.text);
    }
}
