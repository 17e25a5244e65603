# What `cmake --install` puts where. The programs find their data beside the
# executable or under ../share/zolt (src/file/data_directory.h), so every layout
# keeps the data folder at that place relative to bin/.
include(GNUInstallDirs)

set(ZOLT_INSTALL_DATADIR ${CMAKE_INSTALL_DATADIR}/zolt)
set(ZOLT_INSTALL_DOCDIR ${CMAKE_INSTALL_DATADIR}/doc/zolt)
set(ZOLT_PACKAGING_DIR ${CMAKE_SOURCE_DIR}/packaging)

set(ZOLT_INSTALLED_PROGRAMS zolt-cli zolt-analyzer)
if(ZOLT_BUILD_SHELL)
    list(APPEND ZOLT_INSTALLED_PROGRAMS zolt)
endif()

if(APPLE AND ZOLT_BUILD_SHELL)
    # A bundle holds the desktop app, its command-line twins and the data in
    # Contents/Resources, the third place the programs look.
    set_target_properties(zolt PROPERTIES MACOSX_BUNDLE ON OUTPUT_NAME ZOLT
        MACOSX_BUNDLE_BUNDLE_NAME ZOLT MACOSX_BUNDLE_GUI_IDENTIFIER com.thessor.zolt
        MACOSX_BUNDLE_BUNDLE_VERSION ${PROJECT_VERSION}
        MACOSX_BUNDLE_SHORT_VERSION_STRING ${PROJECT_VERSION})
    install(TARGETS zolt BUNDLE DESTINATION .)
    install(TARGETS zolt-cli zolt-analyzer RUNTIME DESTINATION ZOLT.app/Contents/MacOS)
    install(DIRECTORY ${CMAKE_SOURCE_DIR}/data/ DESTINATION ZOLT.app/Contents/Resources)
else()
    install(TARGETS ${ZOLT_INSTALLED_PROGRAMS} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    install(DIRECTORY ${CMAKE_SOURCE_DIR}/data/ DESTINATION ${ZOLT_INSTALL_DATADIR})
endif()

# Windows and macOS carry their Qt libraries and plugins with them; a Debian
# system has them from its own packages.
if((WIN32 OR APPLE) AND ZOLT_BUILD_SHELL)
    qt_generate_deploy_app_script(TARGET zolt OUTPUT_SCRIPT ZOLT_QT_DEPLOY_SCRIPT
        NO_UNSUPPORTED_PLATFORM_ERROR)
    install(SCRIPT ${ZOLT_QT_DEPLOY_SCRIPT})
endif()

install(FILES ${CMAKE_SOURCE_DIR}/examples/harness.zlf ${CMAKE_SOURCE_DIR}/examples/harness.zcmd
    ${CMAKE_SOURCE_DIR}/examples/harness.pid ${CMAKE_SOURCE_DIR}/examples/family.grv
    ${CMAKE_SOURCE_DIR}/examples/family.zcmd
    DESTINATION ${ZOLT_INSTALL_DOCDIR}/examples)

# The freedesktop places: menu entry, file types, icons, manual pages, completion.
if(UNIX AND NOT APPLE)
    install(FILES ${ZOLT_PACKAGING_DIR}/zolt.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
    install(FILES ${ZOLT_PACKAGING_DIR}/zolt.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
    install(DIRECTORY ${ZOLT_PACKAGING_DIR}/icons/hicolor
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)
    install(FILES ${ZOLT_PACKAGING_DIR}/icons/zolt.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
    install(FILES ${ZOLT_PACKAGING_DIR}/zolt-cli.bash
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME zolt-cli)
    include(${CMAKE_SOURCE_DIR}/cmake/ZoltManPages.cmake)
endif()
