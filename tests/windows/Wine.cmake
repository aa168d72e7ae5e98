# What tests under Wine share: the fixture wine, which makes fonts and a prefix.

set(wine_folder "${CMAKE_CURRENT_BINARY_DIR}/wine")
set(made_fonts "${wine_folder}/fonts")
configure_file("${CMAKE_CURRENT_LIST_DIR}/fonts.conf.in" "${wine_folder}/fonts.conf" @ONLY)

# Debian's Wine is for 64 bits; that for 32 bits is made by the fixture wine32.
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(wine32 "${PROJECT_BINARY_DIR}/wine32")
  add_test(NAME Wine.For32Bits COMMAND "${CMAKE_CURRENT_LIST_DIR}/wine32" "${wine32}")
  set_tests_properties(Wine.For32Bits PROPERTIES FIXTURES_SETUP wine32)
  set(wine_environment WINEARCH=win32)
  set(wine_environment_modification "PATH=path_list_prepend:${wine32}/usr/lib/wine")
endif()

# folivar_add_wine_test(<name> COMMAND <script> <argument>... [PROPERTIES <property> <value>...])
#
# Without a display, and with no fonts but those of fonts.conf.
function(folivar_add_wine_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "COMMAND;PROPERTIES")
  add_test(NAME ${name} COMMAND ${arg_COMMAND} WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}")
  set(environment
      ${wine_environment}
      "WINEPREFIX=${PROJECT_BINARY_DIR}/wine"
      WINEDEBUG=-all
      "WINEDLLOVERRIDES=mscoree,mshtml,winedbg.exe="
      "WINEPATH=Z:$<TARGET_FILE_DIR:Folivar::folivar>"
      "FONTCONFIG_FILE=${wine_folder}/fonts.conf"
      LC_ALL=C.UTF-8)
  set(modification DISPLAY=unset: ${wine_environment_modification})
  set_tests_properties(
    ${name} PROPERTIES FIXTURES_REQUIRED wine ENVIRONMENT "${environment}" ENVIRONMENT_MODIFICATION
                       "${modification}" ${arg_PROPERTIES})
endfunction()

folivar_add_wine_test(
  Wine.Prepare
  COMMAND "${CMAKE_CURRENT_LIST_DIR}/prepare" "${made_fonts}"
  PROPERTIES FIXTURES_SETUP wine FIXTURES_REQUIRED wine32)
