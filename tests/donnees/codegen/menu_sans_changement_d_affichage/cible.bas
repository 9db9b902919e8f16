' LCD
Const NUM_MENU_MAX = 3
Dim i_menu As Byte
Action_Selectionnee: 
	If i_menu = 1 Then
		Gosub Match
	ElseIf i_menu = 2 Then
		Gosub Test
	EndIf
	Return
Affichage_Menu:
	If i_menu = 1 Then
		AFF_CHAR = "Match"
	ElseIf i_menu = 2 Then
		AFF_CHAR = "Test"
	EndIf
	Return
Const NUM_MENU_MAX = 9 'plus loin, rien ne change
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
