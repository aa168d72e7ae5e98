# Lets npm install what package-lock.json in the folder names. What npm says goes into npm.log there,
# for the tests to show; only once it has succeeded is there a file "installed".
#
#   cmake -DNPM=<npm> -DFOLDER=<folder> -P NpmInstall.cmake

file(REMOVE_RECURSE "${FOLDER}/installed" "${FOLDER}/node_modules")
execute_process(
  COMMAND "${NPM}" ci
  WORKING_DIRECTORY "${FOLDER}"
  RESULT_VARIABLE status
  OUTPUT_FILE "${FOLDER}/npm.log"
  ERROR_FILE "${FOLDER}/npm.log")
if(status EQUAL 0)
  file(TOUCH "${FOLDER}/installed")
else()
  message(WARNING "npm failed (${status}); see ${FOLDER}/npm.log")
endif()
