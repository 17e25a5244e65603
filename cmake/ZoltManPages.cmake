# Manual pages made at build time from the programs' own --help, so that they
# never disagree with it; the name line and the sections --help has no room for
# come from packaging/man/*.roff.
set(ZOLT_MAN_PAGES "")
foreach(program zolt-cli zolt-analyzer)
    set(page ${CMAKE_BINARY_DIR}/man/${program}.1)
    set(sections ${ZOLT_PACKAGING_DIR}/man/${program}.roff)
    add_custom_command(OUTPUT ${page}
        COMMAND ${CMAKE_COMMAND} -DPROGRAM=$<TARGET_FILE:${program}> -DSECTIONS=${sections}
            -DVERSION=${PROJECT_VERSION} -DOUTPUT=${page} -P ${CMAKE_SOURCE_DIR}/cmake/ManPage.cmake
        DEPENDS ${program} ${sections} ${CMAKE_SOURCE_DIR}/cmake/ManPage.cmake
        COMMENT "Writing the manual page of ${program}"
        VERBATIM)
    list(APPEND ZOLT_MAN_PAGES ${page})
endforeach()
add_custom_target(man_pages ALL DEPENDS ${ZOLT_MAN_PAGES})
install(FILES ${ZOLT_MAN_PAGES} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
