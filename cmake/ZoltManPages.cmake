# Manual pages made from the programs' own --help at build time, so that they
# never disagree with it; the name line and the sections --help has no room
# for come from packaging/man/*.h2m.
find_program(ZOLT_HELP2MAN help2man)
if(NOT ZOLT_HELP2MAN)
    message(STATUS "help2man not found: no manual pages (scripts/setup.sh installs it)")
    return()
endif()

set(ZOLT_MAN_PAGES "")
foreach(program zolt-cli zolt-analyzer)
    set(page ${CMAKE_BINARY_DIR}/man/${program}.1)
    add_custom_command(OUTPUT ${page}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/man
        COMMAND ${ZOLT_HELP2MAN} --no-info --section=1 --version-string=${PROJECT_VERSION}
            --include=${ZOLT_PACKAGING_DIR}/man/${program}.h2m
            --output=${page} $<TARGET_FILE:${program}>
        DEPENDS ${program} ${ZOLT_PACKAGING_DIR}/man/${program}.h2m
        COMMENT "Writing the manual page of ${program}"
        VERBATIM)
    list(APPEND ZOLT_MAN_PAGES ${page})
endforeach()
add_custom_target(man_pages ALL DEPENDS ${ZOLT_MAN_PAGES})
install(FILES ${ZOLT_MAN_PAGES} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
