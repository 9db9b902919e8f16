' équipe : déjà écrit à la main
Avance:
	return
'********* garde
Apres: 	
	End
