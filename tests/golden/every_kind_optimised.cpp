/*Quillform: START_OBJECT: MESSAGE */
u32 EveryKindMsg(T_WINDOW *win,u32 item_code,u32 msg,void *data)
{
	switch(msg)
	{
	case ACT_GAIN_CONTEXT:
		break;
	case ACT_TERMINATE:
		RemoveWindow(win);
		return(0);
	case ACT_KEY:
		break;
	case ACT_REQUESTER_OK:
		break;
	case ACT_MENU_OPEN:
		break;
	}
	switch(item_code)
	{
	case 0x1:		/*Start*/
		break;
	case 0x2:		/*Across*/
		break;
	case 0x3:		/*Down*/
		break;
	case 0x4:		/*Name field*/
		break;
	case 0x5:		/*Label*/
		break;
	case 0x7:		/*Enabled*/
		break;
	case 0x8:		/*One of*/
		break;
	case 0x9:		/*Choices*/
		break;
	case 0xa:		/*Pick*/
		break;
	case 0xb:		/*Outline*/
		break;
	case 0xc:		/*Along*/
		break;
	case 0xd:		/*Up and down*/
		break;
	case 0xe:		/*Swatch*/
		break;
	case 0xf:		/*Picture*/
		break;
	case 0x10:		/*View*/
		break;
	case 0x11:		/*Custom*/
		break;
	}
	return(0);
}
/*Quillform: END_OBJECT: MESSAGE */

/*Quillform: START_OBJECT: PAGE */
T_WINDOW *OpenEveryKindWindow()
{
	T_WINDOW_HANDLER *wh;
	T_WINDOW *win;
	T_WINDOWOBJINIT win_init;
	T_GADGET_HANDLER *gh;
	T_GADGET *gad;
	T_GADGETOBJECTINIT gadinit;
	T_MENU_HANDLER *mh;
	T_MENU *menu;
	T_MENUOBJECTINIT menuinit;

	ClearGadInit;
	ClearWinInit;

/*Quillform: START_OBJECT: WINDOW */
	wh=FindWindowHandler();
	win_init.flags=WF_CLOSE|WF_RESIZE|WF_TITLE|WF_MOVE|WF_BORDER|WF_CHILD|WF_CLIP_PARENT;
	win_init.x=32;
	win_init.y=48;
	win_init.w=480;
	win_init.h=360;
	win_init.icon=0;
	win_init.idcmp=IDCMP_GAIN_CONTEXT|IDCMP_TERMINATE|IDCMP_KEY|IDCMP_MENU_OPEN|IDCMP_REQUESTER_OK;
	win_init.bitmap="paper.png";
	win_init.message=EveryKindMsg;
	win_init.icon_bank=NULL;
	win=ICreateWindow("Every Kind");
	win->UserAreaColour=0x204060;
	gh=(T_GADGET_HANDLER *)NewGadgetHandler(win);
	mh=NewMenuHandler(win);
/*Quillform: END_OBJECT: WINDOW */

/*Quillform: START_OBJECT: GADGET */
	gadinit.x=8;
	gadinit.y=8;
	gadinit.base_width=80;
	gadinit.base_height=24;
	gadinit.item_code=0x1;
	gadinit.flags=GADGET_FLAGS_PUSH;
	gadinit.action=ACT_LMOUSE_UP|ACT_LMOUSE_DBL;
	gadinit.tab[0]=0x80000011;
	gadinit.tab[1]=0x2;
	gadinit.hover_text="Starts it";
	gadinit.type=GADGET_TYPE_BUTTON;
	gad=CreateGadget("Start");

	SetGadgetColours(gad,0xc0c0c0,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.y=40;
	gadinit.base_width=160;
	gadinit.base_height=20;
	gadinit.item_code=0x2;
	gadinit.flags=GADGET_FLAGS_HORIZONTAL;
	gadinit.tab[0]=0x1;
	gadinit.tab[1]=0x3;
	gadinit.type=GADGET_TYPE_SLIDER;
	gadinit.min=-10;
	gadinit.max=90;
	gadinit.step=5;
	gadinit.mark_width=16;
	gadinit.mark_height=18;
	gad=CreateGadget("Across");

	SetGadgetColours(gad,0xc0c0c0,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.x=176;
	gadinit.y=8;
	gadinit.base_width=20;
	gadinit.base_height=120;
	gadinit.item_code=0x3;
	gadinit.flags=GADGET_FLAGS_VERTICAL;
	gadinit.tab[0]=0x2;
	gadinit.tab[1]=0x4;
	gadinit.hover_text=NULL;
	gadinit.max=200;
	gad=CreateGadget("Down");

	SetGadgetColours(gad,0xc0c0c0,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.x=8;
	gadinit.y=70;
	gadinit.base_width=160;
	gadinit.base_height=20;
	gadinit.item_code=0x4;
	gadinit.flags=0;
	gadinit.action=ACT_RMOUSE_UP|ACT_LMOUSE_UP|ACT_LMOUSE_DBL;
	gadinit.tab[0]=0x3;
	gadinit.tab[1]=0x5;
	gadinit.type=GADGET_TYPE_STRING;
	gadinit.font="DejaVuSans.ttf";
	gadinit.cursor=5;
	gadinit.data=&PutStringName;
	gadinit.max=STRINGS_MAX_SIZE;
	gad=CreateGadget("Name field");

	SetGadgetColours(gad,0xffffff,0x101010);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.y=96;
	gadinit.base_width=80;
	gadinit.base_height=16;
	gadinit.item_code=0x5;
	gadinit.flags=GADGET_FLAGS_BOLD|GADGET_FLAGS_NO_BORDER;
	gadinit.action=0;
	gadinit.tab[0]=0x4;
	gadinit.tab[1]=0x7;
	gadinit.type=GADGET_TYPE_TEXT;
	gad=CreateGadget("Label");

	SetGadgetColours(gad,0xc0c0c0,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.x=4;
	gadinit.y=120;
	gadinit.base_width=200;
	gadinit.base_height=100;
	gadinit.item_code=0x0;
	gadinit.flags=GADGET_FLAGS_NO_BORDER;
	gadinit.tab[0]=0x0;
	gadinit.tab[1]=0x0;
	gadinit.type=GADGET_TYPE_GROUP;
	gadinit.font=NULL;
	gad=CreateGadget("Options");

	SetGadgetColours(gad,0xc0c0c0,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.x=12;
	gadinit.y=136;
	gadinit.base_width=100;
	gadinit.base_height=16;
	gadinit.item_code=0x7;
	gadinit.flags=0;
	gadinit.action=ACT_LMOUSE_UP|ACT_LMOUSE_DBL;
	gadinit.tab[0]=0x5;
	gadinit.tab[1]=0x8;
	gadinit.hover_text="Switch";
	gadinit.type=GADGET_TYPE_CHECK_BOX;
	gad=CreateGadget("Enabled");

	SetGadgetColours(gad,0xc0c0c0,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.y=156;
	gadinit.item_code=0x8;
	gadinit.tab[0]=0x7;
	gadinit.tab[1]=0x9;
	gadinit.type=GADGET_TYPE_RADIOBUTTON;
	gad=CreateGadget("One of");

	SetGadgetColours(gad,0xc0c0c0,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.x=220;
	gadinit.y=8;
	gadinit.base_width=120;
	gadinit.base_height=80;
	gadinit.item_code=0x9;
	gadinit.action=ACT_LMOUSE_UP|ACT_LMOUSE_DOWN|ACT_LMOUSE_DBL;
	gadinit.tab[0]=0x8;
	gadinit.tab[1]=0xa;
	gadinit.hover_text=NULL;
	gadinit.type=GADGET_TYPE_LIST_BOX;
	gad=CreateGadget("Choices");

	SetGadgetColours(gad,0xffffff,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.y=96;
	gadinit.base_height=20;
	gadinit.item_code=0xa;
	gadinit.flags=GADGET_FLAGS_DISABLED;
	gadinit.action=ACT_LMOUSE_UP|ACT_LMOUSE_DBL;
	gadinit.tab[0]=0x9;
	gadinit.tab[1]=0xb;
	gadinit.type=GADGET_TYPE_DROP_BOX;
	gad=CreateGadget("Pick");

	SetGadgetColours(gad,0xffffff,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.y=124;
	gadinit.base_height=100;
	gadinit.item_code=0xb;
	gadinit.flags=0;
	gadinit.tab[0]=0xa;
	gadinit.tab[1]=0xc;
	gadinit.type=GADGET_TYPE_TREE;
	gad=CreateGadget("Outline");

	SetGadgetColours(gad,0xffffff,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.x=8;
	gadinit.y=230;
	gadinit.base_width=200;
	gadinit.base_height=16;
	gadinit.item_code=0xc;
	gadinit.flags=GADGET_FLAGS_HORIZONTAL;
	gadinit.tab[0]=0xb;
	gadinit.tab[1]=0xd;
	gadinit.type=GADGET_TYPE_SCROLLBAR;
	gadinit.min=0;
	gadinit.init_val=40000;
	gad=CreateGadget("Along");

	SetGadgetColours(gad,0xc0c0c0,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.x=350;
	gadinit.y=8;
	gadinit.base_width=16;
	gadinit.base_height=200;
	gadinit.item_code=0xd;
	gadinit.flags=GADGET_FLAGS_VERTICAL;
	gadinit.tab[0]=0xc;
	gadinit.tab[1]=0xe;
	gadinit.max=64;
	gadinit.init_val=4;
	gad=CreateGadget("Up and down");

	SetGadgetColours(gad,0xc0c0c0,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.x=380;
	gadinit.base_width=40;
	gadinit.base_height=40;
	gadinit.item_code=0xe;
	gadinit.flags=0;
	gadinit.tab[0]=0xd;
	gadinit.tab[1]=0xf;
	gadinit.type=GADGET_TYPE_COLOUR_FLAT;
	gadinit.data=&cb;
	gad=CreateGadget("Swatch");

	SetGadgetColours(gad,0xff,0xffffff);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.y=56;
	gadinit.base_width=64;
	gadinit.base_height=64;
	gadinit.item_code=0xf;
	gadinit.tab[0]=0xe;
	gadinit.tab[1]=0x10;
	gadinit.type=GADGET_TYPE_TEXTURE;
	gadinit.data=&tg;
	gad=CreateGadget("Picture");

	SetGadgetColours(gad,0x0,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.y=128;
	gadinit.base_width=80;
	gadinit.base_height=80;
	gadinit.item_code=0x10;
	gadinit.tab[0]=0xf;
	gadinit.tab[1]=0x11;
	gadinit.type=GADGET_TYPE_SCENE;
	gadinit.cursor=300;
	gadinit.data=&sg;
	gad=CreateGadget("View");

	SetGadgetColours(gad,0x0,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.y=216;
	gadinit.base_height=40;
	gadinit.item_code=0x11;
	gadinit.flags=GADGET_FLAGS_CURSOR;
	gadinit.tab[0]=0x10;
	gadinit.tab[1]=0x1;
	gadinit.type=GADGET_TYPE_USER;
	gadinit.cursor=300;
	gad=CreateGadget("Custom");

	SetGadgetColours(gad,0x808080,0x0);
/*Quillform: END_OBJECT: GADGET */
	return(win);
}
/*Quillform: END_OBJECT: PAGE */
