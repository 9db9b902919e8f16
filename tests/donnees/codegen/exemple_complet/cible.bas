' programme de l'équipe
Dim Val_Action As Byte
Debut:
	Gosub TRAJECTOIRE
	End
'********************************************************
'********************************************************
'*** Code généré pour les trajectoires du Robot Brindalo
'*** Projet Ardanel. Equipe Brindalo
'*** Site @SITE@
'********************************************************
'********************************************************
TRAJECTOIRE:
	'*** # Projet Ardanel. Equipe Brindalo
	'*** # Site : x
	'*** 
	'*** # Fichier de description du déplacement du robot: POUR GENERATION DU CODE PICBASIC.
	'*** #
	Val_Action=120
	Gosub Action_Avance
	Val_Action=90
	Gosub Action_Gauche
	Val_Action=34
	Gosub Action_Avance
	Val_Action=90
	Gosub Action_Gauche
	Val_Action=18
	Gosub Action_Avance
	Gosub position_balise
	Return
