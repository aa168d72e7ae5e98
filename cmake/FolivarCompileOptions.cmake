# What every target of the project is compiled with.
#
#   folivar_compile_options(<target>)
function(folivar_compile_options target)
  target_compile_features(${target} PRIVATE cxx_std_20)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)

  if(MSVC)
    target_compile_options(${target} PRIVATE /W4 /permissive- /utf-8 /fp:precise)
  else()
    # Without -ffp-contract=off a machine with fused multiply-add would round differently, and the
    # same calls would no longer give the same bytes.
    target_compile_options(
      ${target}
      PRIVATE -ffp-contract=off
              -Wall
              -Wextra
              -Wpedantic
              -Wconversion
              -Wsign-conversion
              -Wshadow
              -Wcast-qual
              -Wnon-virtual-dtor
              -Wold-style-cast
              -Woverloaded-virtual
              -Wundef)
    # GCC 12 takes text + std::string for overlapping copies (GCC bug 105651).
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
      target_compile_options(${target} PRIVATE -Wno-restrict)
    endif()
  endif()

  set_target_properties(${target} PROPERTIES COMPILE_WARNING_AS_ERROR
                                             ${FOLIVAR_WARNINGS_AS_ERRORS})
endfunction()
