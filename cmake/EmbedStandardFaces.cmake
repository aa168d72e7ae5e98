# Writes the C++ source that carries the standard faces' metric files inside the library.
#
#   cmake -DOUTPUT=<file.cpp> -DFOLDER=<folder of the .afm files>
#         -P EmbedStandardFaces.cmake -- <face>...
#
# A file becomes several strings, because compilers limit the length of one.

set(piece_length 8000)

set(faces)
foreach(index RANGE 1 ${CMAKE_ARGC})
  if(faces_follow AND index LESS CMAKE_ARGC)
    list(APPEND faces "${CMAKE_ARGV${index}}")
  elseif(CMAKE_ARGV${index} STREQUAL "--")
    set(faces_follow ON)
  endif()
endforeach()
list(LENGTH faces face_count)

set(arrays)
set(table)
foreach(face IN LISTS faces)
  set(path "${FOLDER}/${face}.afm")
  file(READ "${path}" text)
  file(SIZE "${path}" size)

  # The text is cut and escaped with plain LF line ends; the literals below end lines with CR LF.
  string(REPLACE "\r\n" "\n" text "${text}")
  string(LENGTH "${text}" length)
  string(REGEX MATCHALL "\n" line_ends "${text}")
  list(LENGTH line_ends lines)
  math(EXPR expected_size "${length} + ${lines}")
  if(NOT size EQUAL expected_size OR text MATCHES "[^ -~\n]")
    message(FATAL_ERROR "${path}: must be ASCII text with CR LF line ends")
  endif()

  string(MAKE_C_IDENTIFIER "k${face}" array)
  string(APPEND arrays "constexpr std::string_view ${array}[] = {\n")
  math(EXPR last "${length} - 1")
  foreach(start RANGE 0 ${last} ${piece_length})
    string(SUBSTRING "${text}" ${start} ${piece_length} piece)
    string(REPLACE "\\" "\\\\" piece "${piece}")
    string(REPLACE "\"" "\\\"" piece "${piece}")
    string(REPLACE "\n" "\\r\\n\"\n    \"" piece "${piece}")
    string(APPEND arrays "    \"${piece}\"sv,\n")
  endforeach()
  string(APPEND arrays "};\n\n")
  string(APPEND table "    {\"${face}\"sv, ${array}, std::size(${array})},\n")
endforeach()

file(
  WRITE "${OUTPUT}"
  "// Made by EmbedStandardFaces.cmake from the .afm files.

#include \"folivar/fonts/StandardFaceFiles.h\"

#include <cstddef>
#include <iterator>
#include <span>
#include <string_view>

namespace folivar {
namespace {

using namespace std::string_view_literals;

${arrays}constexpr StandardFaceFile kFiles[${face_count}] = {
${table}};

}  // namespace

std::span<const StandardFaceFile, kStandardFaceCount> StandardFaceFiles() { return kFiles; }

}  // namespace folivar
")
