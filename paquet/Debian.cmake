# The files that a Debian package owes its readers.
set(PAQUET_CONTACT "equipe@tavolmex.invalid")
configure_file(changelog.in changelog @ONLY)
file(STRINGS ${PROJECT_SOURCE_DIR}/LICENSE lignes)
list(SUBLIST lignes 2 -1 lignes) # from the permission on
set(licence)
foreach(ligne IN LISTS lignes)
    string(APPEND licence " ${ligne}\n")
endforeach()
string(REGEX REPLACE "^ \n" "" licence "${licence}")
string(REPLACE "\n \n" "\n .\n" licence "${licence}")
configure_file(copyright.in copyright @ONLY)
set(journal ${CMAKE_CURRENT_BINARY_DIR}/changelog)
add_custom_command(OUTPUT ${journal}.gz COMMAND ${GZIP} -9nc ${journal} >${journal}.gz DEPENDS ${journal})
list(APPEND produits ${journal}.gz)
install(FILES ${journal}.gz ${CMAKE_CURRENT_BINARY_DIR}/copyright
    DESTINATION ${documentation} COMPONENT systeme)
