/*Quillform: START_OBJECT: MESSAGE */
u32 TestMsg(T_WINDOW *win,u32 item_code,u32 msg,void *data)
{
	switch(msg)
	{
	case ACT_TERMINATE:
		RemoveWindow(win);
		return(0);
	case ACT_KEY:
		break;
	case ACT_WINDOW_RESIZE:
		break;
	}
	switch(item_code)
	{
	case 0x2a:		/*Log in*/
		break;
	case 0x2:		/*My slider*/
		break;
	case 0x3:		/*New Checkbox*/
		break;
	case 0x4:		/**/
		break;
	}
	return(0);
}
/*Quillform: END_OBJECT: MESSAGE */

/*Quillform: START_OBJECT: PAGE */
T_WINDOW *OpenTestWindow()
{
	T_WINDOW_HANDLER *wh;
	T_WINDOW *win;
	T_WINDOWOBJINIT win_init;
	T_GADGET_HANDLER *gh;
	T_GADGET *gad;
	T_GADGETOBJECTINIT gadinit;

	ClearGadInit;
	ClearWinInit;

/*Quillform: START_OBJECT: WINDOW */
	wh=FindWindowHandler();
	win_init.flags=WF_OPEN_FULLSCREEN|WF_CLOSE|WF_RESIZE|WF_TITLE|WF_MOVE|WF_CHILD|WF_CLIP_PARENT|WF_ALTF4;
	win_init.x=44;
	win_init.y=108;
	win_init.w=400;
	win_init.h=300;
	win_init.icon=0;
	win_init.idcmp=IDCMP_TERMINATE|IDCMP_KEY|IDCMP_WINDOW_RESIZE;
	win_init.bitmap=NULL;
	win_init.message=TestMsg;
	win_init.icon_bank=NULL;
	win=ICreateWindow("Test");
	gh=(T_GADGET_HANDLER *)NewGadgetHandler(win);
/*Quillform: END_OBJECT: WINDOW */

/*Quillform: START_OBJECT: GADGET */
	gadinit.x=20;
	gadinit.y=20;
	gadinit.base_width=100;
	gadinit.base_height=24;
	gadinit.item_code=0x2a;
	gadinit.flags=GADGET_FLAGS_DISABLED|GADGET_FLAGS_BOLD;
	gadinit.action=ACT_RMOUSE_UP|ACT_LMOUSE_UP|ACT_LMOUSE_DOWN|ACT_LMOUSE_DBL;
	gadinit.tab[0]=0x2a;
	gadinit.hover_text="";
	gadinit.type=GADGET_TYPE_BUTTON;
	gad=CreateGadget("Log in");

	SetGadgetColours(gad,0xc8f0f0,0x2010c8);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.y=60;
	gadinit.base_width=160;
	gadinit.base_height=20;
	gadinit.item_code=0x2;
	gadinit.flags=GADGET_FLAGS_SOLID|GADGET_FLAGS_HORIZONTAL;
	gadinit.action=ACT_LMOUSE_UP|ACT_LMOUSE_DBL;
	gadinit.type=GADGET_TYPE_SLIDER;
	gadinit.min=-5;
	gadinit.max=50;
	gadinit.step=5;
	gadinit.mark_width=16;
	gadinit.mark_height=18;
	gad=CreateGadget("My slider");

	SetGadgetColours(gad,0xe4e1e1,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.y=100;
	gadinit.base_width=140;
	gadinit.item_code=0x3;
	gadinit.flags=0;
	gadinit.hover_text="Remember me";
	gadinit.type=GADGET_TYPE_CHECK_BOX;
	gad=CreateGadget("New Checkbox");

	SetGadgetColours(gad,0xe4e1e1,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.x=200;
	gadinit.y=20;
	gadinit.base_width=40;
	gadinit.base_height=40;
	gadinit.item_code=0x4;
	gadinit.flags=GADGET_FLAGS_ICON;
	gadinit.hover_text="";
	gadinit.type=GADGET_TYPE_COLOUR_FLAT;
	gadinit.icon=3;
	gadinit.data=&cb;
	gad=CreateGadget("");

	SetGadgetColours(gad,0xe4e1e1,0x0);
/*Quillform: END_OBJECT: GADGET */
	return(win);
}
/*Quillform: END_OBJECT: PAGE */
