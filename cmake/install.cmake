# What is installed and where.
include(GNUInstallDirs)
set(from ${CMAKE_SOURCE_DIR}/data)
set(made ${CMAKE_BINARY_DIR}/linux)

# The releases, for the software catalogue.
set(catalogue_releases)
foreach(release IN LISTS releases)
    html_items("${release_notes_${release}}" items)
    string(APPEND catalogue_releases
        "    <release version=\"${release}\" date=\"${release_date_${release}}\">\n"
        "      <description>\n        <ul>\n${items}        </ul>\n      </description>\n    </release>\n")
endforeach()

set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS LICENSE ${from}/about.txt)
# license_text(FILE START VARIABLE): the text from START on, with the indentation and the dots of the copyright file.
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

# The program looks for its files in its own folder.
set(program_folder ${CMAKE_INSTALL_LIBDIR}/warhost)
set(full_program_folder ${CMAKE_INSTALL_FULL_LIBDIR}/warhost)
set(list_file ${full_program_folder}/modif.txt)
set(list_upgrade "Installing again replaces it.")
set(release_date ${release_date_${PROJECT_VERSION}})
foreach(file metainfo.xml warhost.6 copyright)
    configure_file(${from}/linux/${file}.in ${made}/${file} @ONLY)
endforeach()
file(RELATIVE_PATH program ${CMAKE_INSTALL_FULL_BINDIR} ${full_program_folder}/warhost)
file(CREATE_LINK ${program} ${made}/warhost SYMBOLIC)

install(TARGETS warhost DESTINATION ${program_folder})
install_runtime_data(${program_folder})
install(FILES ${made}/warhost TYPE BIN)

set(share ${CMAKE_INSTALL_DATADIR})
install(FILES ${made}/warhost.6 DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
install(FILES ${made}/copyright TYPE DOC)
install(FILES ${from}/linux/warhost.desktop DESTINATION ${share}/applications)
install(FILES ${from}/linux/mime.xml DESTINATION ${share}/mime/packages RENAME warhost.xml)
install(FILES ${made}/metainfo.xml DESTINATION ${share}/metainfo RENAME example.warhost.warhost.metainfo.xml)
foreach(size 16 32 48 256)
    set(folder ${share}/icons/hicolor/${size}x${size})
    install(FILES ${from}/icons/warhost-${size}.png DESTINATION ${folder}/apps RENAME warhost.png)
    install(FILES ${from}/icons/army-${size}.png DESTINATION ${folder}/mimetypes RENAME application-x-warhost-army.png)
endforeach()
set(folder ${share}/icons/hicolor/scalable)
install(FILES ${from}/icons/warhost.svg DESTINATION ${folder}/apps)
install(FILES ${from}/icons/army.svg DESTINATION ${folder}/mimetypes RENAME application-x-warhost-army.svg)
