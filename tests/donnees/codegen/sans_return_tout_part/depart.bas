Debut:
TRAJECTOIRE:
	Return x
Autre:
trajectoire:
	End
