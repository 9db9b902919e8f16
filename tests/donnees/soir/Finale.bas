'********************************************************
'*** Le port : le remorqueur
'*** Programme du robot 1, code a la main.
'*** Le simulateur y ajoute la fonction TRAJECTOIRE.
'********************************************************

' --- Constantes
Const NUM_MENU_MAX = 3
Const CHGT_AFFICHAGE = 1
Const AFFICHER_MENU = 2
Const AFFICHER_RESULTAT = 3

' --- Variables
Dim i_menu As Byte
Dim Demande_Affichage As Byte
Dim AFF_CHAR As String * 16
Dim Val_Action As Byte
Dim NBRE_CARREAUX As Byte
Dim carreaux_lus As Byte
Dim compteur As Byte

Main:
	i_menu = 1
	Demande_Affichage = AFFICHER_MENU
Boucle:
	Gosub Lire_Boutons
	Gosub Affichage_Menu
	Goto Boucle

' --- Boutons : portb.0 passe a la ligne suivante, portb.1 valide
Lire_Boutons:
	If portb.0 = 0 Then
		i_menu = i_menu + 1
		If i_menu > NUM_MENU_MAX Then
			i_menu = 1
		EndIf
		Demande_Affichage = AFFICHER_MENU
	EndIf
	If portb.1 = 0 Then
		Gosub Action_Selectionnee
	EndIf
	Return

' --- Ce que fait chaque ligne du menu
Action_Selectionnee:
	If i_menu = 1 Then
		Gosub Dechargement
		Demande_Affichage = CHGT_AFFICHAGE
	ElseIf i_menu = 2 Then
		Gosub Essai_Moteurs
		Demande_Affichage = CHGT_AFFICHAGE
	ElseIf i_menu = 3 Then
		Gosub Batterie
		Demande_Affichage = CHGT_AFFICHAGE
	EndIf
	Return

' --- Le texte de chaque ligne du menu
Affichage_Menu:
	If i_menu = 1 Then
		AFF_CHAR = "Dechargement"
	ElseIf i_menu = 2 Then
		AFF_CHAR = "Essai moteurs"
	ElseIf i_menu = 3 Then
		AFF_CHAR = "Batterie"
	EndIf
	Gosub Afficher_LCD
	Return

Afficher_LCD:
	Lcdcmdout LcdClear
	Lcdout AFF_CHAR
	Return

' --- L'epreuve : attendre la tirette, puis partir
Dechargement:
	If portb.2 = 1 Then
		Goto Dechargement
	EndIf
	Val_Action = 10
	Gosub Action_Avance
	Return

Essai_Moteurs:
	Val_Action = 20
	Gosub Action_Avance
	Val_Action = 180
	Gosub Action_Gauche
	Val_Action = 20
	Gosub Action_Avance
	Return

Batterie:
	Adcin 0, compteur
	Return

' --- Les mouvements : Val_Action en cm ou en degres
Action_Avance:
	portc.0 = 1
	portc.1 = 1
	Gosub Compter_Val_Action
	Return
Action_Recule:
	portc.0 = 0
	portc.1 = 0
	Gosub Compter_Val_Action
	Return
Action_Gauche:
	portc.0 = 0
	portc.1 = 1
	Gosub Compter_Val_Action
	Return
Action_Droite:
	portc.0 = 1
	portc.1 = 0
	Gosub Compter_Val_Action
	Return

' --- Un pas du moteur par cm ou par degre
Compter_Val_Action:
	carreaux_lus = 0
	For compteur = 1 To Val_Action
		portc.2 = 1
		WaitMs 5
		portc.2 = 0
		WaitMs 5
		If porta.1 = 1 Then
			carreaux_lus = carreaux_lus + 1
		EndIf
	Next compteur
	Return

' --- Tourner jusqu'a voir la balise
position_balise:
	Val_Action = 1
	Gosub Action_Droite
	If porta.2 = 0 Then
		Goto position_balise
	EndIf
	Return
position_balise_g:
	Val_Action = 1
	Gosub Action_Gauche
	If porta.3 = 0 Then
		Goto position_balise_g
	EndIf
	Return

' --- Le sol a-t-il defile comme prevu ?
VERIFIER_NBRE_CARREAUX:
	If carreaux_lus <> NBRE_CARREAUX Then
		AFF_CHAR = "Carreaux !"
		Gosub Afficher_LCD
	EndIf
	Return
'********************************************************
'********************************************************
'*** Code généré pour les trajectoires du Robot Brindalo
'*** Projet Ardanel. Equipe Brindalo
'*** Site https://www.example.org/brindalo
'********************************************************
'********************************************************
TRAJECTOIRE:
	'*** # Projet Ardanel. Equipe Brindalo
	'*** # Site : https://www.example.org/brindalo
	'*** 
	'*** # Fichier de description du déplacement du robot: POUR GENERATION DU CODE PICBASIC.
	'*** #
	Val_Action=20
	Gosub Action_Avance
	Val_Action=45
	Gosub Action_Gauche
	Delay 100
	Return
'********************************************************
'********************************************************
'*** Code généré pour les trajectoires du Robot Brindalo
'*** Projet Ardanel. Equipe Brindalo
'*** Site https://www.example.org/brindalo
'********************************************************
'********************************************************
TRAJECTOIRE_AUTRE:
	'*** # Projet Ardanel. Equipe Brindalo
	'*** # Site : https://www.example.org/brindalo
	'*** 
	'*** # Fichier de description du déplacement du robot: POUR GENERATION DU CODE PICBASIC.
	'*** #
	Val_Action=20
	Gosub Action_Avance
	Val_Action=45
	Gosub Action_Droite
	Delay 100
	Return
