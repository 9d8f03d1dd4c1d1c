# The Debian package, which cpack builds from the installed files and a few that only Debian has.
set(full_program_folder /usr/${program_folder})
set(list_file /etc/warhost/modif.txt)
set(list_upgrade "An upgrade keeps changes to it, and asks if it brings a new list.")
foreach(file warhost.6 copyright lintian-overrides)
    configure_file(${from}/linux/${file}.in ${made}/debian/${file} @ONLY)
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/debian_files.cmake)
set(CPACK_WARHOST_DEBIAN_FILES ${made}/debian)
set(CPACK_WARHOST_PROGRAM ${program_folder}/warhost)
set(CPACK_WARHOST_SOURCE ${CMAKE_SOURCE_DIR})
set(CPACK_WARHOST_STRIP ${CMAKE_STRIP})
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_WARHOST_LIST_FILE ${list_file})
file(WRITE ${made}/debian/conffiles "${list_file}\n")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${made}/debian/conffiles)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PACKAGE_CONTACT "Warhost developers <developers@warhost.example>")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://warhost.example/")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, xdg-utils") # windows on a Wayland desktop; the Web Links
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "resolve battles of a tabletop role-playing game
Warhost is an aid for the game master: describe two armies, roll a d20 for
each, and see who won, what happens to the loser, and how many soldiers each
unit loses.
.
It saves armies to files and simulates a battle any number of times to report
the odds. A manual and sample armies are included.")
include(CPack)
