// The property dialogs' suites: a page with gadgets, the dialogs found by name, and a person's
// clicks and keys on their controls (also inside the combos, scrolled into view first).
#pragma once
#include <algorithm>
#include <string>
#include <vector>

#include "editor/editor_fixture.h"
#include "properties/action_editor.h"
#include "properties/dialog_support.h"
#include "properties/gadget_properties.h"
#include "properties/message_control.h"
#include "properties/source_file_info.h"
#include "properties/texts.h"
#include "properties/window_properties.h"
#include "source/open_page.h"
#include "source/source_writer.h"

#define DIALOG_CHECK_MASK (QUAL_CONTROL)

class PropertiesTest : public PageTest
{
  protected:
    // The page's child window of that name opened last, or null.
    t_Window *Dialog(const char *name)
    {
        t_Window *found = NULL;
        for (t_Window *child = page->first_child; child->next; child = child->next)
            if (IsWindowLive(child) && child->name && strcmp(child->name, name) == 0)
                found = child;
        return found;
    }
    int Dialogs(const char *name)
    {
        int n = 0;
        for (t_Window *child = page->first_child; child->next; child = child->next)
            n += IsWindowLive(child) && child->name && strcmp(child->name, name) == 0;
        return n;
    }
    // The nth control of a dialog with this item code, in list order, combos walked where they stand.
    static t_gadget *Control(t_Window *dialog, u32 item_code, int nth = 0)
    {
        std::vector<t_gadget *> all;
        Controls(FindGadgetHandler(dialog)->first_gadget, &all);
        for (t_gadget *g : all)
            if (g->live_item_code == item_code && nth-- == 0)
                return g;
        return NULL;
    }
    static void Controls(t_gadget *first, std::vector<t_gadget *> *out)
    {
        for (t_gadget *g = first; g->next; g = g->next) {
            out->push_back(g);
            if (g->type == GADGET_TYPE_COMBO && g->class_data)
                Controls((t_gadget *)((T_LIST_DATA *)g->class_data)->entries.first, out);
        }
    }
    // The texts of a dialog's controls of one type, in order.
    static std::vector<std::string> Texts(t_Window *dialog, u16 type)
    {
        std::vector<t_gadget *> all;
        std::vector<std::string> texts;
        Controls(FindGadgetHandler(dialog)->first_gadget, &all);
        for (t_gadget *g : all)
            if (g->type == type)
                texts.push_back(g->name);
        return texts;
    }
    // A click on a control as a person makes it: its combo scrolled to show it first.
    static void ClickControl(t_gadget *control)
    {
        ASSERT_NE(control, nullptr);
        UserTurns(1);  // a dialog opened just now gets its first-run message: its combo's bars
        if (control->parent_combo)
            ScrollComboToGadget(control);
        UserTurns(1);
        UserClick(MidX(control), MidY(control), 1);
    }
    // Clicks a field, selects its text and types a new one.
    static void TypeInto(t_gadget *field, const char *text)
    {
        ClickControl(field);
        UserKey(KEY_CTRL('A'), 0);
        UserType(text);
    }
    t_Window *OpenProperties(t_gadget *gadget)
    {
        UserDoubleClick(MidX(gadget), MidY(gadget));
        Pause();
        UserTurns(1);
        return Dialog(TXT_GADGET_PROPERTIES);
    }
    // The toolkit's blocks in use, after the removed windows have been freed.
    static i64 Blocks()
    {
        UserTurns(1);
        return (i64)_OstrandBase->blocks_allocated;
    }
};
