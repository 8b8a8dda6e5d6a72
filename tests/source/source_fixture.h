// Pages for the source tests: the toolkit opened headless in a temporary data root, pages made
// from tables of gadgets, saves read back as text, and golden files.
#pragma once
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "page/records.h"
#include "source/backup.h"
#include "source/name_tables.h"
#include "source/source_format.h"
#include "source/source_writer.h"

// One gadget of a test page. Fields left out are 0 or none.
typedef struct T_TEST_GADGET {
    u16 type = 0;
    const char *text = NULL;  // the gadget's name
    i16 x = 0, y = 0, w = 0, h = 0;
    u32 item_code = 0;
    u32 flags = 0;  // the design flags
    u32 action = 0;
    u32 tab_index = 0;
    const char *hover = NULL;
    const char *font = NULL;  // a font file name, or null
    int with_cursor = 0;      // live_flags gets GADGET_FLAGS_CURSOR
    u16 cursor = 0;
    u32 back_colour = 0, text_colour = 0;
    i32 min = 0, max = 0, step = 0;       // slider or scroll bar
    i16 mark_width = 0, mark_height = 0;  // slider
    u16 init_val = 0;                     // scroll bar
} T_TEST_GADGET;

// One test page.
typedef struct T_TEST_PAGE {
    const char *name = NULL;
    u32 flags = 0;  // WF_ bits
    u32 idcmp = 0;
    i16 x = 0, y = 0, w = 0, h = 0;
    u32 area_colour = 0;        // 0: the display's default
    int with_menus = 0;         // a menu handler on the window
    const char *bitmap = NULL;  // a file below the data root's Bitmaps folder, made by the fixture
} T_TEST_PAGE;

class SourceTest : public ::testing::Test
{
  protected:
    void SetUp() override;
    void TearDown() override;

    // A page window with a gadget handler and the gadgets of the table, in that order.
    t_Window *MakePage(const T_TEST_PAGE &page, const std::vector<T_TEST_GADGET> &gadgets);
    t_gadget *AddGadget(t_Window *window, const T_TEST_GADGET &row);
    // Saves the page with the given settings bits and returns the file's text.
    std::string SaveAndRead(t_Window *window, u32 settings, const char *file = "page.cpp");
    // The gadgets of the page in list order.
    std::vector<t_gadget *> Gadgets(t_Window *window);
    std::string Path(const std::string &relative) const { return root + "/" + relative; }
    // Compares `text` with tests/golden/<name>, or rewrites that file when
    // QF_REGENERATE_GOLDEN=1 and `may_regenerate`.
    void ExpectGolden(const std::string &text, const char *name, int may_regenerate);

    std::string root;
    T_EDITOR_CONFIG config;
    T_EDITOR_CONFIG *saved_config;
};

// Compares `text` with tests/golden/<name>, or rewrites that file when QF_REGENERATE_GOLDEN=1 and
// `may_regenerate`.
void ExpectGoldenFile(const std::string &text, const char *name, int may_regenerate);
std::string ReadWholeFile(const std::string &path);  // "" when it can't be read
void WriteWholeFile(const std::string &path, const std::string &data);
// The lines of `text` that contain `word`, without their line feed.
std::vector<std::string> LinesWith(const std::string &text, const char *word);
