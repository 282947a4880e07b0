# Installs the build into a fresh prefix, then builds and runs a consumer
# project against the installed package. Arguments: BUILD_DIR, CONSUMER_DIR,
# WORK_DIR, GENERATOR, FLAGS (extra compile and link flags, e.g. sanitizers).
file(REMOVE_RECURSE "${WORK_DIR}")
set(prefix "${WORK_DIR}/prefix")

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "failed: ${ARGN}\n${out}\n${err}")
  endif()
  set(last_output "${out}" PARENT_SCOPE)
endfunction()

run(${CMAKE_COMMAND} --install "${BUILD_DIR}" --prefix "${prefix}")
file(GLOB_RECURSE plugin "${prefix}/*libvorlexdesigner.so")
get_filename_component(plugin_folder "${plugin}" DIRECTORY)
get_filename_component(plugin_folder "${plugin_folder}" NAME)
if(NOT plugin_folder STREQUAL "designer")
  message(FATAL_ERROR "the Designer plugin was not installed under a designer/ folder")
endif()
foreach(header vorlex/Vorlex.h vorlex/qt/VorlexWidget.h vorlex/qt/Editors.h)
  if(NOT EXISTS "${prefix}/include/${header}")
    message(FATAL_ERROR "${header} was not installed")
  endif()
endforeach()

run(${CMAKE_COMMAND} -S "${CONSUMER_DIR}" -B "${WORK_DIR}/build" -G "${GENERATOR}" "-DCMAKE_PREFIX_PATH=${prefix}"
    "-DCMAKE_CXX_FLAGS=${FLAGS}" "-DCMAKE_EXE_LINKER_FLAGS=${FLAGS}" -DCMAKE_BUILD_TYPE=Debug)
run(${CMAKE_COMMAND} --build "${WORK_DIR}/build")
run("${WORK_DIR}/build/headless_consumer")
if(NOT last_output MATCHES "blocks 1 painted 1")
  message(FATAL_ERROR "headless consumer said: ${last_output}")
endif()
run("${WORK_DIR}/build/qt_consumer")
if(NOT last_output MATCHES "blocks 1 text hi width 60")
  message(FATAL_ERROR "Qt consumer said: ${last_output}")
endif()
message(STATUS "the installed package builds and runs both consumers")
