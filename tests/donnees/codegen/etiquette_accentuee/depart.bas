PARCOURS_ÉTÉ:
return
End
