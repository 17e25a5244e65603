# Fails when a file of a core folder includes a Qt header.
set(core_folders core file tables sequence fixture compile download import assembly reports settings
    tutorial analyzer compare interchange)
foreach(folder IN LISTS core_folders)
    file(GLOB_RECURSE files ${SOURCE_DIR}/src/${folder}/*.h ${SOURCE_DIR}/src/${folder}/*.cpp)
    foreach(f IN LISTS files)
        file(STRINGS ${f} hits REGEX "^[ \t]*#[ \t]*include[ \t]*[<\"](Q[A-Za-z]|qt)")
        if(hits)
            message(FATAL_ERROR "${f} includes Qt, but src/${folder} is a core layer: ${hits}")
        endif()
    endforeach()
endforeach()
