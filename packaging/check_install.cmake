# Installs the build in the folder BUILD to a place of its own, and compares what lies there with installed.txt.
set(Place ${BUILD}/installed)
file(REMOVE_RECURSE ${Place})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${Place}
                OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(GLOB_RECURSE There LIST_DIRECTORIES FALSE RELATIVE ${Place} ${Place}/*)
file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/installed.txt Listed REGEX "^[^#]")
set(Missing ${Listed})
list(REMOVE_ITEM Missing ${There})
list(REMOVE_ITEM There ${Listed})
if(Missing OR There)
  message(FATAL_ERROR "Not installed: ${Missing}\nInstalled, but not listed in packaging/installed.txt: ${There}")
endif()
