' programme de l'équipe
Dim Val_Action As Byte
Debut:
	Gosub TRAJECTOIRE
	End
