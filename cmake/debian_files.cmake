# Run by cpack between installing and packing: strips the program, adds the files that only Debian has, and compresses
# those that Debian requires compressed.
include(${CPACK_WARHOST_SOURCE}/cmake/changelog.cmake)
set(usr ${CPACK_TEMPORARY_DIRECTORY}/usr)
set(from ${CPACK_WARHOST_DEBIAN_FILES})
set(changelog ${usr}/share/doc/warhost/changelog)
set(manual_page ${usr}/share/man/man6/warhost.6)

function(run)
    execute_process(COMMAND ${ARGV} OUTPUT_VARIABLE output OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    set(output "${output}" PARENT_SCOPE)
endfunction()

run(${CPACK_WARHOST_STRIP} --strip-all --remove-section=.comment ${usr}/${CPACK_WARHOST_PROGRAM})

read_changelog(${CPACK_WARHOST_SOURCE}/CHANGELOG.md)
foreach(release IN LISTS releases)
    run(date -u -R -d ${release_date_${release}})
    string(REPLACE "\n  " "\n    " notes "\n${release_notes_${release}}")
    string(REPLACE "\n- " "\n  * " notes "${notes}")
    file(APPEND ${changelog} "warhost (${release}) unstable; urgency=medium\n${notes}\n\n"
        " -- ${CPACK_PACKAGE_CONTACT}  ${output}\n\n")
endforeach()
# The user's own list survives an upgrade.
get_filename_component(list_folder ${CPACK_TEMPORARY_DIRECTORY}${CPACK_WARHOST_LIST_FILE} DIRECTORY)
get_filename_component(program_folder ${usr}/${CPACK_WARHOST_PROGRAM} DIRECTORY)
file(MAKE_DIRECTORY ${list_folder})
file(RENAME ${program_folder}/modif.txt ${CPACK_TEMPORARY_DIRECTORY}${CPACK_WARHOST_LIST_FILE})
file(CREATE_LINK ${CPACK_WARHOST_LIST_FILE} ${program_folder}/modif.txt SYMBOLIC)
file(COPY_FILE ${from}/copyright ${usr}/share/doc/warhost/copyright)
file(COPY_FILE ${from}/warhost.6 ${manual_page})
file(MAKE_DIRECTORY ${usr}/share/lintian/overrides)
file(COPY_FILE ${from}/lintian-overrides ${usr}/share/lintian/overrides/warhost)
run(gzip -9nf ${changelog} ${manual_page})
