Const NUM_MENU_MAX = 3
TRAJECTOIRE:
	a
	Return
Milieu:
trajectoire:
	b
	Return
