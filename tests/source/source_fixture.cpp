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
    t_Window *window =
        (t_Window *)CreateObject(&CURRENT_DISPLAY->window_class->head, page.name, &init);
    EXPECT_TRUE(window != NULL);
    if (!window)
        return NULL;
    // The design fields, as a page holds them.
    window->flags = page.flags;
    window->idcmp = page.idcmp;
    if (page.w) {
        window->x = page.x, window->y = page.y, window->w = page.w, window->h = page.h;
    }
    window->UserAreaColour = page.area_colour ? page.area_colour
                                              : DISPLAY_RECORD->default_area_colour;
    NewGadgetHandler(window);
    if (page.with_menus)
        NewMenuHandler(window);
    for (const T_TEST_GADGET &spec : gadgets)
        AddGadget(window, spec);
    return window;
}

t_gadget *SourceTest::AddGadget(t_Window *window, const T_TEST_GADGET &spec)
{
    t_Gaget_Handler *gh = FindGadgetHandler(window);
    T_GADGETOBJECTINIT init;
    memset(&init, 0, sizeof(init));
    init.x = spec.x, init.y = spec.y;
    init.type = spec.type;
    init.base_width = spec.w, init.base_height = spec.h;
    init.mark_width = spec.mark_width, init.mark_height = spec.mark_height;
    init.item_code = 1;
    init.init_val = spec.init_val;
    init.min = spec.min, init.max = spec.max, init.step = spec.step;
    init.flags = spec.flags | GADGET_MARK_CREATED;
    init.action = 0x73;
    init.hover_text = spec.hover;
    init.font = spec.font;
    CreateObject(&gh->head, spec.text ? spec.text : "", &init);
    // List boxes, drop boxes and trees give their entry holder: the gadget is the list's last.
    t_gadget *g = (t_gadget *)gh->gadget_list.last;
    EXPECT_EQ(g->type, spec.type);

    g->x = spec.x, g->y = spec.y;
    g->base_width = spec.w, g->base_height = spec.h;
    g->item_code = spec.item_code;
    g->flags = spec.flags;
    g->action = spec.action;
    g->tab_index = spec.tab_index;
    g->cursor = spec.cursor;
    if (spec.with_cursor)
        g->live_flags |= GADGET_FLAGS_CURSOR;
    SetGadgetColours(g, spec.back_colour, spec.text_colour);
    SetGadgetHover(g, spec.hover);
    if (spec.font) {
        EXPECT_TRUE(g->font != NULL) << "font " << spec.font;
    }

    // The values of sliders and scroll bars live in the record that the toolkit made.
    if (spec.type == GADGET_TYPE_SLIDER || spec.type == GADGET_TYPE_SCROLLBAR) {
        EXPECT_NE(g->class_data, 0u);
    }
    if (spec.type == GADGET_TYPE_SLIDER && g->class_data) {
        T_SLIDER_DATA *slider = (T_SLIDER_DATA *)g->class_data;
        slider->min = spec.min, slider->max = spec.max, slider->step = spec.step;
        slider->mark_width = spec.mark_width, slider->mark_height = spec.mark_height;
    } else if (spec.type == GADGET_TYPE_SCROLLBAR && g->class_data) {
        T_SCROLLBAR_DATA *bar = (T_SCROLLBAR_DATA *)g->class_data;
        bar->min = spec.min, bar->max = spec.max, bar->init_val = spec.init_val;
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
            ADD_FAILURE() << name << " line " << line << ": expected \"" << want_line
                          << "\", written \"" << got_line << "\"";
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
