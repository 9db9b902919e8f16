Const NUM_MENU_MAX = 3
TRAJECTOIRE:
	a
	Return
Milieu:
trajectoire:
	b
	Return
'********************************************************
'********************************************************
'*** Code généré pour les trajectoires du Robot Brindalo
'*** Projet Ardanel. Equipe Brindalo
'*** Site @SITE@
'********************************************************
'********************************************************
TRAJECTOIRE:
	Val_Action=5
	Gosub Action_Avance
	Return
