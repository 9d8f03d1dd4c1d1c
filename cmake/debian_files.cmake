# Run by cpack between installing and packing: strips the program, puts in place what only Debian has, and compresses
# what Debian wants compressed.
set(usr ${CPACK_TEMPORARY_DIRECTORY}/usr)
set(from ${CPACK_WARHOST_DEBIAN_FILES})
set(changelog ${usr}/share/doc/warhost/changelog)
set(manual_page ${usr}/share/man/man6/warhost.6)

function(run)
    execute_process(COMMAND ${ARGV} OUTPUT_VARIABLE output OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    set(output "${output}" PARENT_SCOPE)
endfunction()

run(${CPACK_WARHOST_STRIP} --strip-all --remove-section=.comment ${usr}/${CPACK_WARHOST_PROGRAM})

run(date -u -R -d ${CPACK_WARHOST_RELEASE_DATE})
set(release_day ${output})
configure_file(${from}/changelog ${changelog} @ONLY)
file(COPY_FILE ${from}/copyright ${usr}/share/doc/warhost/copyright)
file(COPY_FILE ${from}/warhost.6 ${manual_page})
file(MAKE_DIRECTORY ${usr}/share/lintian/overrides)
file(COPY_FILE ${from}/lintian-overrides ${usr}/share/lintian/overrides/warhost)
run(gzip -9nf ${changelog} ${manual_page})
