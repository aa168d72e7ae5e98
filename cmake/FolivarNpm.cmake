# folivar_npm_install(<target> <folder> <file>...)
#
# A target that copies the files, among them package.json and package-lock.json, into a folder of
# the build, and lets npm install there what the lock file says. Where npm fails, so does what needs
# the packages.
function(folivar_npm_install target folder)
  find_program(NPM npm REQUIRED)
  set(script "${PROJECT_SOURCE_DIR}/cmake/NpmInstall.cmake")
  set(files ${ARGN})
  list(TRANSFORM files PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
  file(MAKE_DIRECTORY "${folder}")
  add_custom_command(
    OUTPUT "${folder}/installed"
    COMMAND "${CMAKE_COMMAND}" -E copy ${files} "${folder}"
    COMMAND "${CMAKE_COMMAND}" "-DNPM=${NPM}" "-DFOLDER=${folder}" -P "${script}"
    DEPENDS "${script}" ${files}
    COMMENT "Installing the packages of ${target}"
    VERBATIM)
  add_custom_target(${target} ALL DEPENDS "${folder}/installed")
endfunction()
