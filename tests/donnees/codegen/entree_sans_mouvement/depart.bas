End
