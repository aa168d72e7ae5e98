# Compiles one case of cases.cpp. With a REASON the compiler must fail and one of its error lines
# must match it; without one it must succeed.
#
#   cmake -DCOMPILER= -DINCLUDE= -DSOURCE= -DCASE= -DREASON= [-DSTANDARD=20] -P CheckCase.cmake

set(ENV{LC_ALL} C)
if(NOT STANDARD)
  set(STANDARD 20)
endif()
execute_process(
  COMMAND "${COMPILER}" "-std=c++${STANDARD}" -fsyntax-only "-I${INCLUDE}" "-DCASE_${CASE}" "${SOURCE}"
  RESULT_VARIABLE status
  OUTPUT_VARIABLE messages
  ERROR_VARIABLE messages)

if(REASON STREQUAL "")
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${CASE}: must compile, but:\n${messages}")
  endif()
elseif(status EQUAL 0)
  message(FATAL_ERROR "${CASE}: compiles, but a host must not be able to write it")
elseif(NOT messages MATCHES "error: [^\n]*(${REASON})")
  message(FATAL_ERROR "${CASE}: refused, but not with '${REASON}':\n${messages}")
endif()
