// The builder of the menu tables: one walk over the rows, for the main menu bar and the page's
// context menus alike.
#include "editor/menu_rows.h"

#include <string.h>

void BuildMenuRows(const T_MENU_BUILD *build, const T_MENU_ROW *rows, u32 count)
{
    T_MENU_HANDLER *handler = build->handler;
    T_MENUOBJECTINIT init;
    memset(&init, 0, sizeof(init));
    init.parent_list = build->parent_list;
    t_Menu *title = NULL;
    for (const T_MENU_ROW *row = rows; row < rows + count; row++) {
        init.item_code = row->item_code;
        init.shortcut = row->shortcut;
        switch (row->what) {
        case MENU_ROW_TITLE:  // a title; the entries that follow go under it
            init.kind = MENU_KIND_TITLE;
            init.parent_list = NULL;
            title = (t_Menu *)CreateObject(&handler->head, row->label, &init);
            break;
        case MENU_ROW_COMMAND:  // a command, which shows its key
            AddApplicationCmdMenu(build->application, handler, &init, row->item_code);
            break;
        case MENU_ROW_COMMAND_SAVE:  // the Save commands carry the standard Save icon
            init.icon_bank = DISPLAY_RECORD->icon_bank;
            init.icon = STANDARD_SAVE_ICON;
            AddApplicationCmdMenu(build->application, handler, &init, row->item_code);
            init.icon_bank = NULL;
            init.icon = 0;
            break;
        case MENU_ROW_ENTRY:
            init.kind = MENU_KIND_ENTRY;
            CreateObject(&handler->head, row->label, &init);
            break;
        case MENU_ROW_SUBMENU:  // the entries that follow go into the sub-menu
            init.kind = MENU_KIND_SUBMENU;
            init.parent_list = (t_List *)CreateObject(&handler->head, row->label, &init);
            break;
        case MENU_ROW_SUBMENU_END:
            init.parent_list = build->parent_list;
            break;
        case MENU_ROW_SEPARATOR:
            init.kind = MENU_KIND_SEPARATOR;
            init.item_code = 0;
            CreateObject(&handler->head, "", &init);
            break;
        case MENU_ROW_PLACE:
            if (build->fill_place)
                build->fill_place(build, title);
            break;
        default:  // a row of an unknown kind makes nothing
            QF_EXPECT(row->what <= MENU_ROW_PLACE);
            break;
        }
    }
}
