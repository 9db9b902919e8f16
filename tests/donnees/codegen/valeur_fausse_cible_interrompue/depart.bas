TRAJECTOIRE:
Return
End
