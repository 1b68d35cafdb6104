# cmake -P script: install, check the installed tree, configure, build and run the consumer.
file(REMOVE_RECURSE "${WORK_DIR}")
set(prefix "${WORK_DIR}/prefix")

function(run)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE out)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "Failed (${result}): ${ARGV}\n${out}")
    endif()
endfunction()

run(${CMAKE_COMMAND} --install "${BUILD_DIR}" --prefix "${prefix}")

file(GLOB_RECURSE plugin "${prefix}/libVelaQtCustomWidgets.so")
list(FILTER plugin INCLUDE REGEX "/plugins/designer/")
if(NOT plugin)
    message(FATAL_ERROR "The Designer plugin was not installed below ${prefix}")
endif()
foreach(header VelaExport.h QSpinBoxEx.h QSliderEx.h)
    if(NOT EXISTS "${prefix}/include/VelaQtCustomWidgets/${header}")
        message(FATAL_ERROR "Header ${header} was not installed")
    endif()
endforeach()

# Every installed header must compile on its own include path, as a host includes it (the
# compiled forms come in through the widget headers that use them; a source naming them itself
# would send AUTOUIC looking for the .ui files).
file(GLOB headers RELATIVE "${prefix}/include/VelaQtCustomWidgets"
     "${prefix}/include/VelaQtCustomWidgets/*.h")
list(FILTER headers EXCLUDE REGEX "^ui_")
set(includes "")
foreach(header IN LISTS headers)
    string(APPEND includes "#include <${header}>\n")
endforeach()
file(WRITE "${WORK_DIR}/all_headers.cpp" "${includes}")

run(${CMAKE_COMMAND} -S "${CONSUMER_SOURCE_DIR}" -B "${WORK_DIR}/consumer" -G "${GENERATOR}"
    -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_BUILD_TYPE=Release -DFORMS_DIR=${FORMS_DIR}
    -DALL_HEADERS_SOURCE=${WORK_DIR}/all_headers.cpp)
run(${CMAKE_COMMAND} --build "${WORK_DIR}/consumer")
run("${WORK_DIR}/consumer/consumer")
