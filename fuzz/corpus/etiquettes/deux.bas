TRAJECTOIRE:
	a
	Return
Milieu:
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
