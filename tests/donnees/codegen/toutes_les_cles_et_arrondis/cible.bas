End
'********************************************************
'********************************************************
'*** Code généré pour les trajectoires du Robot Brindalo
'*** Projet Ardanel. Equipe Brindalo
'*** Site @SITE@
'********************************************************
'********************************************************
TRAJECTOIRE:
	Val_Action=0
	Gosub Action_Avance
	Val_Action=2
	Gosub Action_Recule
	Val_Action=2
	Gosub Action_Droite
	Val_Action=-2
	Gosub Action_Gauche
	Delay 4
	NBRE_CARREAUX =7
	Gosub VERIFIER_NBRE_CARREAUX
	NBRE_CARREAUX =-32768
	Gosub VERIFIER_NBRE_CARREAUX
	Gosub position_balise
	Gosub position_balise_g
	Val_Action=255
	Gosub Action_Avance
	Val_Action=100
	Gosub Action_Avance
	'*** '*** PB remplissage fichier
	'***  AVANCE:5
	'*** AVANC
	'*** BALISE:1
	'*** DELAI :4
	Return
