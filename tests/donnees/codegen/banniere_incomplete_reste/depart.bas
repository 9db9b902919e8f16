End
'********************************************************
'*** Code généré pour les trajectoires du Robot Brindalo
'*** Projet Ardanel. Equipe Brindalo
'*** Site @SITE@
'********************************************************
'********************************************************
TRAJECTOIRE:
	Return
Suite:
'********************************************************
'********************************************************
'*** Code généré pour les trajectoires du Robot Brindalo
'*** Projet Ardanel. Equipe Brindalo
'*** Site @SITE@
'********************************************************
'********************************************************
' à moi
trajectoire:
RETURN
Fin:
