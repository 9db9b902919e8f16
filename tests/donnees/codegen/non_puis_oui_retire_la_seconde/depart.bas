TRAJECTOIRE:
	a
	Return
Milieu:
trajectoire:
	b
	Return
