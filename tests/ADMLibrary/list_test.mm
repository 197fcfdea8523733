#include "tests/ADMLibrary/support/ToolkitTest.h"

namespace {

using Titles = std::vector<std::string>;

struct ListTest : ToolkitTest {
    void insert(int index, const char* title) {
        sADMEntry->SetText(sADMList->InsertEntry(_list, index), title);
    }
    Titles titles() {
        Titles all;
        NSMenu* menu = [(NSPopUpButton*)control_of(_item) menu];
        for (NSInteger i = 0; i < [menu numberOfItems]; ++i)
            all.push_back([[[menu itemAtIndex:i] title] UTF8String]);
        return all;
    }
    int active() { return sADMEntry->GetIndex(sADMList->GetActiveEntry(_list)); }

    _Opaque_ADMItem* _item = add(kADMPopupListType, {10, 10, 30, 150});
    _Opaque_ADMList* _list = sADMItem->GetList(_item);
};

} // namespace

TEST_F(ListTest, EntriesAreInsertedRemovedAndSelected) {
    EXPECT_EQ(sADMList->NumberOfEntries(_list), 0);
    EXPECT_EQ(sADMList->GetActiveEntry(_list), nullptr);
    insert(0, "a");
    insert(1, "c");
    insert(1, "c"); // titles may repeat
    insert(1, "b");
    EXPECT_EQ(titles(), (Titles{"a", "b", "c", "c"}));
    EXPECT_EQ(active(), 0);
    _Opaque_ADMEntry* entry = sADMList->IndexEntry(_list, 2);
    sADMEntry->Select(entry, true);
    EXPECT_EQ(active(), 2);
    EXPECT_EQ(sADMList->IndexEntry(_list, 0), entry); // the handle means the entry returned last
    EXPECT_EQ(sADMEntry->GetIndex(entry), 0);
    EXPECT_EQ(sADMEntry->GetList(entry), _list);
    sADMEntry->Select(sADMList->IndexEntry(_list, 0), false);
    EXPECT_EQ(active(), 2);
    sADMList->RemoveEntry(_list, 0);
    EXPECT_EQ(titles(), (Titles{"b", "c", "c"}));
    EXPECT_EQ(active(), 1);
}

TEST_F(ListTest, TitlesAreUtf8AndStayWhenTheyAreNot) {
    insert(0, "Cam\u00e9ra");
    for (const char* invalid : {"\xff", "caf\x8e", "\xc3", static_cast<const char*>(nullptr)})
        sADMEntry->SetText(sADMList->IndexEntry(_list, 0), invalid);
    EXPECT_EQ(titles(), Titles{"Cam\u00e9ra"});
}

TEST_F(ListTest, IndicesOutOfRangeChangeNothing) {
    insert(0, "a");
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
    for (const char* type : {kADMTextPushButtonType, kADMTextStaticType})
        EXPECT_EQ(sADMList->InsertEntry(sADMItem->GetList(add(type)), 0), nullptr);
}
