/*Quillform: START_OBJECT: MESSAGE */
u32 LoginMsg(T_WINDOW *win,u32 item_code,u32 msg,void *data)
{
	switch(msg)
	{
	case ACT_TERMINATE:
		RemoveWindow(win);
		return(0);
	}
	switch(item_code)
	{
	case 0x1:		/*My String*/
		break;
	case 0x2:		/*My String*/
		break;
	case 0x6:		/*User name*/
		break;
	case 0x7:		/*Password*/
		break;
	case 0x3:		/*Remember me*/
		break;
	case 0xa:		/*Log in*/
		break;
	case 0xb:		/*Cancel*/
		break;
	}
	return(0);
}
/*Quillform: END_OBJECT: MESSAGE */

/*Quillform: START_OBJECT: PAGE */
T_WINDOW *OpenLoginWindow()
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
	win_init.flags=WF_CLOSE|WF_RESIZE|WF_TITLE|WF_MOVE|WF_BORDER|WF_CHILD|WF_CLIP_PARENT;
	win_init.x=200;
	win_init.y=200;
	win_init.w=360;
	win_init.h=230;
	win_init.icon=0;
	win_init.idcmp=IDCMP_TERMINATE;
	win_init.bitmap=NULL;
	win_init.message=LoginMsg;
	win_init.icon_bank=NULL;
	win=ICreateWindow("Login");
	gh=(T_GADGET_HANDLER *)NewGadgetHandler(win);
/*Quillform: END_OBJECT: WINDOW */

/*Quillform: START_OBJECT: GADGET */
	gadinit.x=116;
	gadinit.y=23;
	gadinit.base_width=180;
	gadinit.base_height=20;
	gadinit.item_code=0x1;
	gadinit.action=ACT_LMOUSE_UP|ACT_LMOUSE_DBL;
	gadinit.tab[0]=0x80000007;
	gadinit.tab[1]=0x2;
	gadinit.hover_text="Your user name";
	gadinit.type=GADGET_TYPE_STRING;
	gadinit.data=&PutStringName;
	gadinit.max=STRINGS_MAX_SIZE;
	gad=CreateGadget("My String");

	SetGadgetColours(gad,0xe4e1e1,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.y=58;
	gadinit.item_code=0x2;
	gadinit.flags=GADGET_FLAGS_SECRET;
	gadinit.tab[0]=0x1;
	gadinit.tab[1]=0x3;
	gadinit.hover_text="Your password";
	gadinit.data=&PutStringName;
	gadinit.max=STRINGS_MAX_SIZE;
	gad=CreateGadget("My String");

	SetGadgetColours(gad,0xe4e1e1,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.x=16;
	gadinit.y=23;
	gadinit.base_width=90;
	gadinit.item_code=0x6;
	gadinit.flags=GADGET_FLAGS_NO_BORDER;
	gadinit.tab[0]=0xb;
	gadinit.tab[1]=0x7;
	gadinit.hover_text="";
	gadinit.type=GADGET_TYPE_TEXT;
	gad=CreateGadget("User name");

	SetGadgetColours(gad,0xe4e1e1,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.y=58;
	gadinit.item_code=0x7;
	gadinit.tab[0]=0x6;
	gadinit.tab[1]=0x1;
	gad=CreateGadget("Password");

	SetGadgetColours(gad,0xe4e1e1,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.x=116;
	gadinit.y=93;
	gadinit.base_width=160;
	gadinit.item_code=0x3;
	gadinit.flags=0;
	gadinit.tab[0]=0x2;
	gadinit.tab[1]=0xa;
	gadinit.type=GADGET_TYPE_CHECK_BOX;
	gad=CreateGadget("Remember me");

	SetGadgetColours(gad,0xe4e1e1,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.y=143;
	gadinit.base_width=80;
	gadinit.base_height=26;
	gadinit.item_code=0xa;
	gadinit.tab[0]=0x3;
	gadinit.tab[1]=0xb;
	gadinit.type=GADGET_TYPE_BUTTON;
	gad=CreateGadget("Log in");

	SetGadgetColours(gad,0xe4e1e1,0x0);
/*Quillform: END_OBJECT: GADGET */

/*Quillform: START_OBJECT: GADGET */
	gadinit.x=216;
	gadinit.item_code=0xb;
	gadinit.tab[0]=0xa;
	gadinit.tab[1]=0x6;
	gad=CreateGadget("Cancel");

	SetGadgetColours(gad,0xe4e1e1,0x0);
/*Quillform: END_OBJECT: GADGET */
	return(win);
}
/*Quillform: END_OBJECT: PAGE */
