TRAJECTOIRE:
	a
	Return
Milieu:
