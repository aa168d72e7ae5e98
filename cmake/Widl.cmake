# Runs widl, which leaves out what it cannot write and still succeeds: whatever it says is a failure.
#
#   cmake "-DCOMMAND=<widl>;<argument>;..." -P Widl.cmake

execute_process(COMMAND ${COMMAND} RESULT_VARIABLE result ERROR_VARIABLE errors)
if(NOT result EQUAL 0 OR NOT errors STREQUAL "")
  message(FATAL_ERROR "${COMMAND}: ${result}\n${errors}")
endif()
