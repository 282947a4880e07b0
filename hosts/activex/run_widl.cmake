# Runs widl (WIDL, ARGS as a ;-list) and prints what it says except the warning
# every optional by-reference argument with a default gives: a VARIANT* with
# defaultvalue is what a Basic host expects of an optional ByRef argument.
execute_process(COMMAND ${WIDL} ${ARGS} RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
string(REPLACE "warning: non-null pointer default value\n" "" err "${err}")
if(out OR err)
  message("${out}${err}")
endif()
if(NOT status EQUAL 0)
  message(FATAL_ERROR "widl failed (${status})")
endif()
