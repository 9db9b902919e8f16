End
'********************************************************
'********************************************************
'*** Code généré pour les trajectoires du Robot Brindalo
'*** Projet Ardanel. Equipe Brindalo
'*** Site @SITE@
'********************************************************
'********************************************************
Parcours_été:
	Val_Action=5
	Gosub Action_Avance
	Return
