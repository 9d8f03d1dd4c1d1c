# The Debian package that cpack makes of what is installed and of a few files that only Debian has.
set(full_program_folder /usr/${program_folder})
string(REPLACE "\n  " "\n    " debian_notes "${notes}")
string(REPLACE "\n- " "\n  * " debian_notes "${debian_notes}")
set(release_day @release_day@) # worked out by cpack's script
foreach(file warhost.6 copyright changelog lintian-overrides)
    configure_file(${from}/linux/${file}.in ${made}/debian/${file} @ONLY)
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/debian_files.cmake)
set(CPACK_WARHOST_DEBIAN_FILES ${made}/debian)
set(CPACK_WARHOST_PROGRAM ${program_folder}/warhost)
set(CPACK_WARHOST_RELEASE_DATE ${release_date})
set(CPACK_WARHOST_STRIP ${CMAKE_STRIP})
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PACKAGE_CONTACT "Warhost developers <developers@warhost.example>")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://warhost.example/")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS xdg-utils) # opens the Web Links
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "settle battles of a tabletop role-playing game
Warhost is an aid for the game master: describe two armies, roll a d20 for
each, and read who won, why, and what it costs every unit.
.
It keeps armies in files, and fights the same battle as often as you like to
tell how often either side wins. A manual and sample armies are included.")
include(CPack)
