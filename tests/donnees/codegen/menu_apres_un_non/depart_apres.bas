' LCD
Const NUM_MENU_MAX = 3
Dim i_menu As Byte
Action_Selectionnee: 
	If i_menu = 1 Then
		Gosub Match
	ElseIf i_menu = 2 Then
		Gosub Test
		Demande_Affichage = chgt_affichage
	'Généré automatiquement par le simulateur
	ElseIf i_menu = 3 Then
		Demande_Affichage = AFFICHER_RESULTAT
		AFF_CHAR = "TRAJECTOIRE"
		Gosub Afficher_LCD
		GOSUB TRAJECTOIRE
	EndIf
	Return
Affichage_Menu:
	If i_menu = 1 Then
		AFF_CHAR = "Match"
	ElseIf i_menu = 2 Then
		AFF_CHAR = "Test"
	'Généré automatiquement par le simulateur
	ElseIf i_menu = 3 Then
		AFF_CHAR = "TRAJECTOIRE"
	'Fin génération automatique 
	EndIf
	Return
Const NUM_MENU_MAX = 9 'plus loin, rien ne change
TRAJECTOIRE:
	a
	Return
