// Pages for the source tests: the toolkit headless in a temporary data root, pages from tables.
#include "source_fixture.h"

#include <stdlib.h>
#include <string.h>

#include <fstream>
#include <sstream>

#include "harness/harness.h"

void SourceTest::SetUp()
{
    char path[512];
    ASSERT_TRUE(MakeTempRoot(path, sizeof(path)));
    root = path;
    ASSERT_TRUE(OpenToolkit("headless", 1280, 800, root.c_str()));
    memset(&config, 0, sizeof(config));
    config.size = EDITOR_CONFIG_SIZE;
    config.flags = CONFIG_OPTIMISE;
    strcpy(config.backup_path, "Backup");
    saved_config = editor_config;
    editor_config = &config;
}

void SourceTest::TearDown()
{
    editor_config = saved_config;
    CloseToolkit();
    RemoveTree(root.c_str());
}

// A small PNG below the data root's Bitmaps folder, for a window background.
static void MakeBitmapFile(const std::string &root, const char *name)
{
    std::string folder = root + "/Bitmaps";
    MakeEntireDirectory(folder.c_str());
    u32 pixels[4 * 4];
    for (u32 &p : pixels)
        p = 0x336699;
    T_SURFACE surface = {pixels, 4, 4, 4};
    ASSERT_TRUE(WritePNG((folder + "/" + name).c_str(), &surface));
}

t_Window *SourceTest::MakePage(const T_TEST_PAGE &page, const std::vector<T_TEST_GADGET> &gadgets)
{
    if (page.bitmap)
        MakeBitmapFile(root, page.bitmap);
    T_WINDOWOBJINIT init;
    memset(&init, 0, sizeof(init));
    init.x = 16, init.y = 16, init.w = 320, init.h = 200;
    init.flags = WF_TITLE | WF_CLOSE | WF_MOVE;
    init.idcmp = page.idcmp;
    init.bitmap = page.bitmap;
    t_Window *window = (t_Window *)CreateObject(&CURRENT_DISPLAY->window_class->head, page.name, &init);
    EXPECT_TRUE(window != NULL);
    if (!window)
        return NULL;
    // The design fields, as a page holds them.
    window->flags = page.flags;
    window->idcmp = page.idcmp;
    if (page.w) {
        window->x = page.x, window->y = page.y, window->w = page.w, window->h = page.h;
    }
    window->UserAreaColour = page.area_colour ? page.area_colour : DISPLAY_RECORD->default_area_colour;
    NewGadgetHandler(window);
    if (page.with_menus)
        NewMenuHandler(window);
    for (const T_TEST_GADGET &row : gadgets)
        AddGadget(window, row);
    return window;
}

t_gadget *SourceTest::AddGadget(t_Window *window, const T_TEST_GADGET &row)
{
    t_Gaget_Handler *gh = FindGadgetHandler(window);
    T_GADGETOBJECTINIT init;
    memset(&init, 0, sizeof(init));
    init.x = row.x, init.y = row.y;
    init.type = row.type;
    init.base_width = row.w, init.base_height = row.h;
    init.mark_width = row.mark_width, init.mark_height = row.mark_height;
    init.item_code = 1;
    init.init_val = row.init_val;
    init.min = row.min, init.max = row.max, init.step = row.step;
    init.flags = row.flags | GADGET_MARK_CREATED;
    init.action = 0x73;
    init.hover_text = row.hover;
    init.font = row.font;
    CreateObject(&gh->head, row.text ? row.text : "", &init);
    // List boxes, drop boxes and trees give their entry holder: the gadget is the list's last.
    t_gadget *g = (t_gadget *)gh->gadget_list.last;
    EXPECT_EQ(g->type, row.type);

    g->x = row.x, g->y = row.y;
    g->base_width = row.w, g->base_height = row.h;
    g->item_code = row.item_code;
    g->flags = row.flags;
    g->action = row.action;
    g->tab_index = row.tab_index;
    g->cursor = row.cursor;
    if (row.with_cursor)
        g->live_flags |= GADGET_FLAGS_CURSOR;
    SetGadgetColours(g, row.back_colour, row.text_colour);
    SetGadgetHover(g, row.hover);
    if (row.font) {
        EXPECT_TRUE(g->font != NULL) << "font " << row.font;
    }

    // The values of sliders and scroll bars live in the record that the toolkit made.
    if (row.type == GADGET_TYPE_SLIDER || row.type == GADGET_TYPE_SCROLLBAR) {
        EXPECT_NE(g->class_data, 0u);
    }
    if (row.type == GADGET_TYPE_SLIDER && g->class_data) {
        T_SLIDER_DATA *slider = (T_SLIDER_DATA *)g->class_data;
        slider->min = row.min, slider->max = row.max, slider->step = row.step;
        slider->mark_width = row.mark_width, slider->mark_height = row.mark_height;
    } else if (row.type == GADGET_TYPE_SCROLLBAR && g->class_data) {
        T_SCROLLBAR_DATA *bar = (T_SCROLLBAR_DATA *)g->class_data;
        bar->min = row.min, bar->max = row.max, bar->init_val = row.init_val;
    }
    return g;
}

std::string SourceTest::SaveAndRead(t_Window *window, u32 settings, const char *file)
{
    config.flags = settings;
    std::string path = Path(file);
    SavePage(window, path.c_str());
    return ReadWholeFile(path);
}

std::vector<t_gadget *> SourceTest::Gadgets(t_Window *window)
{
    std::vector<t_gadget *> list;
    for (t_gadget *g = FindGadgetHandler(window)->first_gadget; g->next; g = g->next)
        list.push_back(g);
    return list;
}

void SourceTest::ExpectGolden(const std::string &text, const char *name, int may_regenerate)
{
    ExpectGoldenFile(text, name, may_regenerate);
}

void ExpectGoldenFile(const std::string &text, const char *name, int may_regenerate)
{
    std::string path = std::string(QF_SOURCE_DIR) + "/tests/golden/" + name;
    const char *regenerate = getenv("QF_REGENERATE_GOLDEN");
    if (may_regenerate && regenerate && strcmp(regenerate, "1") == 0) {
        WriteWholeFile(path, text);
        printf("rewrote %s\n", path.c_str());
        return;
    }
    std::string golden = ReadWholeFile(path);
    ASSERT_FALSE(golden.empty()) << "no golden file " << path;
    // Point at the first line that differs, then compare the whole.
    std::istringstream want(golden), got(text);
    std::string want_line, got_line;
    for (int line = 1; std::getline(want, want_line); line++) {
        if (!std::getline(got, got_line) || got_line != want_line) {
            ADD_FAILURE() << name << " line " << line << ": expected \"" << want_line << "\", written \"" << got_line
                          << "\"";
            break;
        }
    }
    EXPECT_EQ(text, golden) << name;
}

std::string ReadWholeFile(const std::string &path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream data;
    data << in.rdbuf();
    return data.str();
}

void WriteWholeFile(const std::string &path, const std::string &data)
{
    std::ofstream out(path, std::ios::binary);
    out << data;
}

std::vector<std::string> LinesWith(const std::string &text, const char *word)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    std::string line;
    while (std::getline(in, line))
        if (line.find(word) != std::string::npos)
            lines.push_back(line);
    return lines;
}
