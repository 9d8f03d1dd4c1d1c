# read_changelog(FILE): sets `releases`, the versions in the changelog with the newest first, and for each of them
# release_date_VERSION and release_notes_VERSION, a list with a hyphen before each item.
macro(read_changelog file)
    file(READ ${file} changelog_rest)
    set(releases)
    while(changelog_rest MATCHES "\n## ([0-9.]+) \\(([0-9-]+)\\)\n+(.*)")
        set(release ${CMAKE_MATCH_1})
        list(APPEND releases ${release})
        set(release_date_${release} ${CMAKE_MATCH_2})
        set(changelog_rest "${CMAKE_MATCH_3}")
        string(REGEX REPLACE "\n+(## .*)?$" "" release_notes_${release} "${changelog_rest}")
    endwhile()
endmacro()

# html_items(NOTES VARIABLE): the items as the elements of an HTML or XML list.
function(html_items notes variable)
    string(REPLACE "&" "&amp;" items "\n${notes}")
    string(REPLACE "<" "&lt;" items "${items}")
    string(REGEX REPLACE "\n- ([^\n]+(\n  [^\n]+)*)" "<li>\\1</li>\n" items "${items}")
    set(${variable} "${items}" PARENT_SCOPE)
endfunction()
