#include "tests/ADMLibrary/support/ToolkitTest.h"

namespace {

struct ListTest : ToolkitTest {
    ListTest()
        : _item(add(kADMPopupListType, {10, 10, 30, 150})), _list(sADMItem->GetList(_item)) {}

    void append(const char* title) {
        sADMEntry->SetText(sADMList->InsertEntry(_list, sADMList->NumberOfEntries(_list)), title);
    }
    std::vector<std::string> titles() {
        std::vector<std::string> all;
        NSMenu* menu = [(NSPopUpButton*)control_of(_item) menu];
        for (NSInteger i = 0; i < [menu numberOfItems]; ++i)
            all.push_back([[[menu itemAtIndex:i] title] UTF8String]);
        return all;
    }
    int active() { return sADMEntry->GetIndex(sADMList->GetActiveEntry(_list)); }

    _Opaque_ADMItem* _item;
    _Opaque_ADMList* _list;
};

using Titles = std::vector<std::string>;

} // namespace

TEST_F(ListTest, StartsEmpty) {
    EXPECT_EQ(sADMList->NumberOfEntries(_list), 0);
    EXPECT_EQ(sADMList->GetActiveEntry(_list), nullptr);
    EXPECT_EQ(sADMItem->GetList(_item), _list);
    EXPECT_STREQ([[[(NSPopUpButton*)control_of(_item) menu] title] UTF8String], "ADMMenu");
}

TEST_F(ListTest, EntriesAreInsertedRemovedAndSelected) {
    append("a");
    append("c");
    sADMEntry->SetText(sADMList->InsertEntry(_list, 1), "b");
    EXPECT_EQ(titles(), (Titles{"a", "b", "c"}));
    EXPECT_EQ(active(), 0);
    sADMEntry->Select(sADMList->IndexEntry(_list, 2), true);
    EXPECT_EQ(active(), 2);
    sADMEntry->Select(sADMList->IndexEntry(_list, 0), false);
    EXPECT_EQ(active(), 2);
    sADMList->RemoveEntry(_list, 0);
    EXPECT_EQ(titles(), (Titles{"b", "c"}));
    EXPECT_EQ(active(), 1);
}

TEST_F(ListTest, TwoEntriesMayHaveTheSameTitle) {
    append("Camera");
    append("Camera");
    EXPECT_EQ(titles(), (Titles{"Camera", "Camera"}));
}

TEST_F(ListTest, AnEntryHandleMeansTheEntryNamedLast) {
    append("a");
    append("b");
    _Opaque_ADMEntry* first = sADMList->IndexEntry(_list, 0);
    _Opaque_ADMEntry* second = sADMList->IndexEntry(_list, 1);
    EXPECT_EQ(first, second);
    EXPECT_EQ(sADMEntry->GetIndex(first), 1);
    EXPECT_EQ(sADMEntry->GetList(first), _list);
    EXPECT_EQ(sADMList->InsertEntry(_list, 0), first);
    EXPECT_EQ(sADMEntry->GetIndex(first), 0);
}

TEST_F(ListTest, TitlesAreUtf8AndStayWhenTheyAreNot) {
    append("Cam\u00e9ra");
    EXPECT_EQ(titles(), Titles{"Cam\u00e9ra"});
    for (const char* invalid : {"\xff", "caf\x8e", "\xc3"})
        sADMEntry->SetText(sADMList->IndexEntry(_list, 0), invalid);
    sADMEntry->SetText(sADMList->IndexEntry(_list, 0), nullptr);
    EXPECT_EQ(titles(), Titles{"Cam\u00e9ra"});
}

TEST_F(ListTest, IndicesOutOfRangeChangeNothing) {
    append("a");
    for (int index : {-1, 2, 1000000}) {
        EXPECT_EQ(sADMList->InsertEntry(_list, index), nullptr);
        sADMList->RemoveEntry(_list, index);
        _Opaque_ADMEntry* entry = sADMList->IndexEntry(_list, index);
        EXPECT_EQ(sADMEntry->GetIndex(entry), index);
        sADMEntry->SetText(entry, "b");
        sADMEntry->Select(entry, true);
    }
    EXPECT_EQ(titles(), Titles{"a"});
    EXPECT_EQ(active(), 0);
}

TEST_F(ListTest, OtherItemsHaveAnEmptyList) {
    for (const char* type : {kADMTextPushButtonType, kADMTextStaticType}) {
        _Opaque_ADMList* list = sADMItem->GetList(add(type));
        ASSERT_NE(list, nullptr);
        EXPECT_EQ(sADMList->NumberOfEntries(list), 0);
        EXPECT_EQ(sADMList->InsertEntry(list, 0), nullptr);
        EXPECT_EQ(sADMList->GetActiveEntry(list), nullptr);
    }
}
