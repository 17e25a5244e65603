# Writes a manual page whose synopsis is the program's own --help, word for word,
# between the sections of a hand-written file ("[NAME]" lines start a section).
# cmake -DPROGRAM=exe -DSECTIONS=file.roff -DVERSION=x.y.z -DOUTPUT=page.1 -P ManPage.cmake
execute_process(COMMAND ${PROGRAM} --help OUTPUT_VARIABLE help RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR help STREQUAL "")
    message(FATAL_ERROR "${PROGRAM} --help failed (${status})")
endif()
# roff: a backslash is \e, a minus \-, and a line must not start with a control character.
string(REPLACE "\\" "\\e" help "${help}")
string(REPLACE "-" "\\-" help "${help}")
string(REGEX REPLACE "(^|\n)([.'])" "\\1\\\\&\\2" help "${help}")

file(READ ${SECTIONS} sections)
string(REGEX REPLACE "(^|\n)\\[([A-Z ]+)\\]" "\\1.SH \\2" sections "${sections}")
# The synopsis follows the NAME section.
string(FIND "${sections}" "\n.SH " second)
if(second EQUAL -1)
    message(FATAL_ERROR "${SECTIONS} holds no section after NAME")
endif()
string(SUBSTRING "${sections}" 0 ${second} name)
math(EXPR rest_start "${second} + 1")
string(SUBSTRING "${sections}" ${rest_start} -1 rest)

get_filename_component(program ${PROGRAM} NAME_WE)
string(TOUPPER ${program} title)
file(WRITE ${OUTPUT} ".TH ${title} 1 \"\" \"ZOLT ${VERSION}\" \"User Commands\"\n${name}\n"
    ".SH SYNOPSIS\n.nf\n${help}.fi\n${rest}")
