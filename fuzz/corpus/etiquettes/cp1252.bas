' équipe : déjà écrit à la main
Avance:
	return
'********* garde
'********************************************************
'********************************************************
'*** Code généré pour les trajectoires du Robot Brindalo
'*** Projet Ardanel. Equipe Brindalo
'*** Site http://ancien.example.org
'********************************************************
'********************************************************
  Trajectoire:	
	Val_Action=1
	'return ici ne compte pas
	Return 
Apres: 	
	End
