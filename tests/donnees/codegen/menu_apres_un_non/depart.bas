' LCD
  const Num_Menu_Max=2 ' entrées
Dim i_menu As Byte
Action_Selectionnee: 
	If i_menu = 1 Then
		Gosub Match
	ElseIf i_menu = 2 Then
		Gosub Test
		Demande_Affichage = chgt_affichage
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
TRAJECTOIRE:
	a
	Return
