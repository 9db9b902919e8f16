End
