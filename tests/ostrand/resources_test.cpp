// Resources: counted uses, the persistent store's round trip, and broken stores left untouched.
#include <gtest/gtest.h>

#include <string>

#include "ostrand/test_support.h"
#include "toolkit.h"

class Resources : public DataRootTest {
  protected:
    t_List list;
    void SetUp() override {
        DataRootTest::SetUp();
        InitList(&list, "resources");
    }
    // Stores a 548-byte settings block with a known pattern under `name`.
    void StoreSettings(const char *name) {
        T_RESOURCE *r = CreateResource(&list, name, 548, RESOURCE_TYPE_SETTINGS);
        for (u32 i = 0; i < r->data_size; i++)
            ((u8 *)r->data)[i] = (u8)(i * 7 + 1);
        ASSERT_EQ(StoreResources(&list), 0u);
        RemoveResource(r);
        ASSERT_TRUE(LIST_EMPTY(&list));
    }
    std::string StoreFile(const char *name) { return Path(std::string("store/") + name + ".res"); }
};

TEST_F(Resources, StoredSettingsComeBackByteForByteInAFreshList) {
    StoreSettings("AppQuillform");
    t_List fresh;
    InitList(&fresh, "fresh");
    T_RESOURCE *r = OpenResource(&fresh, "AppQuillform", RESOURCE_TYPE_SETTINGS, 0);
    ASSERT_NE(r, nullptr);
    EXPECT_EQ(r->use_count, 1u);
    ASSERT_EQ(r->data_size, 548u);
    for (u32 i = 0; i < 548; i++)
        ASSERT_EQ(((u8 *)r->data)[i], (u8)(i * 7 + 1)) << i;

    // A block that grew (a tail of documents) is stored and read with its new size.
    u32 grown_size = 548 + 20;
    u8 *grown = (u8 *)AllocMemC(grown_size);
    memcpy(grown, r->data, 548);
    memcpy(grown + 548, "/a/page.cpp", 12);
    FreeMem(r->data, r->data_size);
    r->data = grown;
    r->data_size = grown_size;
    ASSERT_EQ(StoreResources(&fresh), 0u);
    RemoveResource(r);
    r = OpenResource(&fresh, "AppQuillform", RESOURCE_TYPE_SETTINGS, 0);
    ASSERT_NE(r, nullptr);
    EXPECT_EQ(r->data_size, grown_size);
    EXPECT_STREQ((char *)r->data + 548, "/a/page.cpp");
    RemoveResource(r);
}

TEST_F(Resources, BrokenStoresGiveNullOneLogLineAndStayAsTheyAre) {
    StoreSettings("AppQuillform");
    std::string good = ReadWhole(StoreFile("AppQuillform"));
    std::string flipped = good;
    flipped[100] ^= 0x40;
    std::string other_type = good;
    other_type[8] = 1;
    struct Case {
        const char *what;
        std::string bytes;
    } cases[] = {
        {"truncated", good.substr(0, good.size() - 10)},
        {"garbage", "this is no store at all, just some text that lies here"},
        {"short head", "QFRS"},
        {"one flipped bit", flipped},
        {"another type", other_type},
        {"empty", ""},
    };
    for (const Case &c : cases) {
        WriteWhole(StoreFile("AppQuillform"), c.bytes);
        std::string log = CaptureLog([&] {
            EXPECT_EQ(OpenResource(&list, "AppQuillform", RESOURCE_TYPE_SETTINGS, 0), nullptr)
                << c.what;
        });
        EXPECT_EQ(CountLines(log), 1) << c.what << ": " << log;
        EXPECT_NE(log.find("AppQuillform.res"), std::string::npos) << c.what;
        EXPECT_EQ(ReadWhole(StoreFile("AppQuillform")), c.bytes) << c.what;
    }
}
