# One static library per source folder; files are picked up by folder so that a
# new file needs no edit here.
set(ZOLT_CORE_TARGETS "" CACHE INTERNAL "")

function(zolt_core_library name)
    cmake_parse_arguments(ARG "" "" "DEPS" ${ARGN})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS
        ${CMAKE_SOURCE_DIR}/src/${name}/*.cpp ${CMAKE_SOURCE_DIR}/src/${name}/*.h)
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    if(sources)
        add_library(zolt_${name} STATIC ${sources})
        target_include_directories(zolt_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
        target_link_libraries(zolt_${name} PUBLIC ${ARG_DEPS})
    else()
        # A folder with headers only so far.
        add_library(zolt_${name} INTERFACE)
        target_include_directories(zolt_${name} INTERFACE ${CMAKE_SOURCE_DIR}/src)
        target_link_libraries(zolt_${name} INTERFACE ${ARG_DEPS})
    endif()
    set(ZOLT_CORE_TARGETS ${ZOLT_CORE_TARGETS} zolt_${name} CACHE INTERNAL "")
endfunction()

# A folder that is allowed to use Qt.
function(zolt_qt_library name)
    cmake_parse_arguments(ARG "" "" "DEPS" ${ARGN})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS
        ${CMAKE_SOURCE_DIR}/src/${name}/*.cpp ${CMAKE_SOURCE_DIR}/src/${name}/*.h)
    add_library(zolt_${name} STATIC ${sources})
    target_include_directories(zolt_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(zolt_${name} PUBLIC ${ARG_DEPS})
endfunction()

function(zolt_cli_library)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS
        ${CMAKE_SOURCE_DIR}/src/cli/*.cpp ${CMAKE_SOURCE_DIR}/src/cli/*.h)
    add_library(zolt_cli STATIC ${sources})
    target_include_directories(zolt_cli PUBLIC ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(zolt_cli PUBLIC zolt_analyzer zolt_interchange zolt_settings zolt_download zolt_import zolt_reports zolt_assembly zolt_compile zolt_compare zolt_file
        zolt_tables zolt_core)
endfunction()

# A test executable per folder of tests/, discovered into CTest.
# With QT, the tests run under an application object (widgets need one).
function(zolt_test_folder name)
    cmake_parse_arguments(ARG "QT" "" "LIBS" ${ARGN})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp)
    if(ARG_QT)
        add_executable(${name}_tests ${sources} ${CMAKE_SOURCE_DIR}/tests/support/qt_test_main.cpp)
        target_link_libraries(${name}_tests PRIVATE ${ARG_LIBS} GTest::gtest)
    else()
        add_executable(${name}_tests ${sources})
        target_link_libraries(${name}_tests PRIVATE ${ARG_LIBS} GTest::gtest GTest::gtest_main)
    endif()
    target_include_directories(${name}_tests PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    target_compile_definitions(${name}_tests PRIVATE
        ZOLT_TEST_DATA_DIR="${CMAKE_SOURCE_DIR}/tests/data"
        ZOLT_BIN_DIR="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
    gtest_discover_tests(${name}_tests DISCOVERY_TIMEOUT 60
        PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()

# The core layers must never reach Qt: refuse a Qt link at configure time and a
# Qt include at every build.
function(zolt_check_core_layers)
    foreach(target IN LISTS ZOLT_CORE_TARGETS)
        get_target_property(type ${target} TYPE)
        if(type STREQUAL "INTERFACE_LIBRARY")
            get_target_property(libs ${target} INTERFACE_LINK_LIBRARIES)
        else()
            get_target_property(libs ${target} LINK_LIBRARIES)
        endif()
        if(libs MATCHES "Qt")
            message(FATAL_ERROR "${target} is a core layer and must not link Qt (${libs})")
        endif()
    endforeach()
    add_custom_target(check_no_qt_in_core ALL
        COMMAND ${CMAKE_COMMAND} -DSOURCE_DIR=${CMAKE_SOURCE_DIR} -P ${CMAKE_SOURCE_DIR}/cmake/CheckNoQt.cmake
        COMMENT "Checking that the core layers include no Qt header")
endfunction()
