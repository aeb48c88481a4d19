# Run by ctest (cmake -P): the layers keep to their order.
#  - Each probe target includes a header of a layer above its own; its build must fail for want of that
#    header, not for any other reason.
#  - No file of core, platform or the shell names a subsystem folder in an include.
# Arguments: -DBUILD_DIR=... -DSOURCE_DIR=... -DPROBES=target|header;target|header...
foreach(probe IN LISTS PROBES)
    string(REPLACE "|" ";" parts ${probe})
    list(GET parts 0 target)
    list(GET parts 1 header)
    execute_process(COMMAND ${CMAKE_COMMAND} --build ${BUILD_DIR} --target ${target}
                    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(result EQUAL 0)
        message(SEND_ERROR "${target}: \"${header}\" is reachable, though it lies in a layer above")
    elseif(NOT output MATCHES "${header}: No such file or directory")
        message(SEND_ERROR "${target} failed for another reason than the climbing include:\n${output}")
    endif()
endforeach()

file(GLOB_RECURSE lower_files ${SOURCE_DIR}/src/core/* ${SOURCE_DIR}/src/platform/* ${SOURCE_DIR}/src/shell/*)
foreach(file IN LISTS lower_files)
    file(STRINGS ${file} hits REGEX "^#include \"(guests|seating|planning|widgets|reports)/")
    if(hits)
        message(SEND_ERROR "${file} includes a subsystem: ${hits}")
    endif()
endforeach()
