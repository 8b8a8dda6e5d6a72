/*Quillform: START_OBJECT: MESSAGE */
u32 DemoPageMsg(T_WINDOW *win,u32 item_code,u32 msg,void *data)
{
	switch(msg)
	{
	case ACT_TERMINATE:
		RemoveWindow(win);
		return(0);
	}
	switch(item_code)
	{
	case 0x1:		/*OK*/
		break;
	case 0x2:		/*My slider*/
		break;
	}
	return(0);
}
/*Quillform: END_OBJECT: MESSAGE */

/*Quillform: START_OBJECT: PAGE */
T_WINDOW *OpenDemoPageWindow()
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
	win_init.flags=WF_CLOSE|WF_TITLE|WF_MOVE|WF_CHILD|WF_CLIP_PARENT;
	win_init.x=16;
	win_init.y=16;
	win_init.w=320;
	win_init.h=200;
	win_init.icon=0;
	win_init.idcmp=IDCMP_TERMINATE;
	win_init.bitmap=NULL;
	win_init.message=DemoPageMsg;
	win_init.icon_bank=NULL;
	win=ICreateWindow("Demo Page");
	gh=(T_GADGET_HANDLER *)NewGadgetHandler(win);
/*Quillform: END_OBJECT: WINDOW */

/*Quillform: START_OBJECT: GADGET */
	gadinit.x=10;
	gadinit.y=10;
	gadinit.base_width=80;
	gadinit.base_height=24;
	gadinit.item_code=0x1;
	gadinit.flags=GADGET_FLAGS_PUSH;
	gadinit.action=ACT_LMOUSE_UP|ACT_LMOUSE_DBL;
	gadinit.tab[0]=0x80000002;
	gadinit.tab[1]=0x2;
	gadinit.hover_text=NULL;
	gadinit.type=GADGET_TYPE_BUTTON;
	gadinit.font=NULL;
	gad=CreateGadget("OK");

	SetGadgetColours(gad,0xc0c0c0,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.x=10;
	gadinit.y=40;
	gadinit.base_width=200;
	gadinit.base_height=20;
	gadinit.item_code=0x2;
	gadinit.flags=GADGET_FLAGS_HORIZONTAL;
	gadinit.action=ACT_LMOUSE_UP|ACT_LMOUSE_DBL;
	gadinit.tab[0]=0x1;
	gadinit.tab[1]=0x1;
	gadinit.hover_text=NULL;
	gadinit.type=GADGET_TYPE_SLIDER;
	gadinit.font=NULL;
	gadinit.min=0;
	gadinit.max=100;
	gadinit.step=1;
	gadinit.mark_width=8;
	gadinit.mark_height=16;
	gad=CreateGadget("My slider");

	SetGadgetColours(gad,0xc0c0c0,0x0);
/*Quillform: END_OBJECT: GADGET */
	return(win);
}
/*Quillform: END_OBJECT: PAGE */
