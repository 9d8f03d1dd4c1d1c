# What is installed and where, and the Debian package that cpack makes of it. The project's version is the release's;
# its date and what is new stand at the head of CHANGELOG.md.
set(from ${CMAKE_SOURCE_DIR}/data)
set(made ${CMAKE_BINARY_DIR}/linux)

# The release.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS CHANGELOG.md LICENSE ${from}/about.txt)
file(READ CHANGELOG.md newest)
string(REGEX REPLACE "^# Changes\n+## " "" newest "${newest}")
string(REGEX REPLACE "\n+## .*|\n+$" "" newest "${newest}")
if(NOT newest MATCHES "^${PROJECT_VERSION} \\(([0-9-]+)\\)\n(.+)")
    message(FATAL_ERROR "CHANGELOG.md must begin with the project's version: ## ${PROJECT_VERSION} (YEAR-MONTH-DAY)")
endif()
set(release_date ${CMAKE_MATCH_1})
set(notes "${CMAKE_MATCH_2}")
string(REPLACE "\n  " "\n    " debian_notes "${notes}")
string(REPLACE "\n- " "\n  * " debian_notes "${debian_notes}")
string(REPLACE "&" "&amp;" notes "${notes}")
string(REPLACE "<" "&lt;" notes "${notes}")
string(REGEX REPLACE "\n- ([^\n]+(\n  [^\n]+)*)" "<li>\\1</li>\n" xml_notes "${notes}")
execute_process(COMMAND date -u -R -d ${release_date}
    OUTPUT_VARIABLE release_day OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)

# license_text(FILE START VARIABLE): the text from START on, with the indentation and the dots that the copyright file
# wants.
function(license_text file first_line variable)
    file(READ ${file} text)
    string(FIND "${text}" "${first_line}" start)
    string(SUBSTRING "${text}" ${start} -1 text)
    string(STRIP "${text}" text)
    string(REGEX REPLACE "\n\n+" "\n.\n" text "${text}")
    string(REPLACE "\n" "\n " text " ${text}")
    set(${variable} "${text}" PARENT_SCOPE)
endfunction()
license_text(LICENSE "Permission is hereby granted" expat)
license_text(${from}/about.txt "OPEN GAME LICENSE" ogl)

foreach(file metainfo.xml warhost.6 copyright changelog)
    configure_file(${from}/linux/${file}.in ${made}/${file} @ONLY)
endforeach()
foreach(file warhost.6 changelog)
    execute_process(COMMAND gzip -9nfk ${made}/${file} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
file(CREATE_LINK ../lib/warhost/warhost ${made}/warhost SYMBOLIC)

# The program looks for its files in its own folder.
install(TARGETS warhost DESTINATION lib/warhost)
install(CODE [[execute_process(COMMAND strip --strip-all --remove-section=.comment
    "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/lib/warhost/warhost" COMMAND_ERROR_IS_FATAL ANY)]])
install(FILES ${from}/modif.txt ${from}/about.txt DESTINATION lib/warhost)
install(DIRECTORY ${from}/help ${from}/armies DESTINATION lib/warhost)
install(FILES ${made}/warhost DESTINATION bin)

install(FILES ${from}/linux/warhost.desktop DESTINATION share/applications)
install(FILES ${from}/linux/mime.xml DESTINATION share/mime/packages RENAME warhost.xml)
install(FILES ${made}/metainfo.xml DESTINATION share/metainfo RENAME example.warhost.warhost.metainfo.xml)
install(FILES ${made}/warhost.6.gz DESTINATION share/man/man6)
install(FILES ${from}/linux/lintian-overrides DESTINATION share/lintian/overrides RENAME warhost)
install(FILES ${made}/copyright ${made}/changelog.gz DESTINATION share/doc/warhost)
foreach(size 16 32 48 256)
    set(folder share/icons/hicolor/${size}x${size})
    install(FILES ${from}/icons/warhost-${size}.png DESTINATION ${folder}/apps RENAME warhost.png)
    install(FILES ${from}/icons/army-${size}.png DESTINATION ${folder}/mimetypes RENAME application-x-warhost-army.png)
endforeach()
set(folder share/icons/hicolor/scalable)
install(FILES ${from}/icons/warhost.svg DESTINATION ${folder}/apps)
install(FILES ${from}/icons/army.svg DESTINATION ${folder}/mimetypes RENAME application-x-warhost-army.svg)

# The package.
set(CPACK_GENERATOR DEB)
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
