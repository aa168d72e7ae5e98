# Takes the C++ samples out of the user guide.
#
#   awk -v folder=FOLDER -v name=docs/guide.txt -f split_samples.awk GUIDE
#
# A sample that begins with "#include" is a program, FOLDER/program_N.cpp. All others become
# functions in FOLDER/samples.cpp, which GuideSamplesTest.cpp calls; code in the language "pdf" is
# what the file of the sample before it must hold.

BEGIN {
  samples = folder "/samples.cpp"
  print "#include \"tests/guide/GuideSamples.h\"\n" > samples
  print "#include <any>\n#include <cstdint>\n#include <iostream>\n#include <stdexcept>" > samples
  print "#include <string_view>\n" > samples
  print "using namespace folivar;\n\nnamespace {" > samples
}

/^```/ {
  if (language == "") {
    language = $0 == "```" ? "text" : substr($0, 4)
    line = NR + 1
    isFirst = 1
    if (language == "pdf") expected[count] = ""
  } else {
    if (language == "cpp" && !isProgram) print "}" > samples
    language = ""
  }
  next
}

language == "cpp" {
  if (isFirst) {
    isProgram = /^#include /
    if (isProgram) {
      program = folder "/program_" ++programs ".cpp"
    } else {
      at[++count] = line
      printf "\nvoid Sample%d(", count > samples
      print "[[maybe_unused]] const std::shared_ptr<PDFDocument>& document," > samples
      print "    [[maybe_unused]] const std::shared_ptr<PDFPage>& page) {" > samples
    }
    printf "#line %d \"%s\"\n", line, name > (isProgram ? program : samples)
  }
  isFirst = 0
  print > (isProgram ? program : samples)
}

language == "pdf" { expected[count] = expected[count] $0 "\n" }

END {
  print "\n}  // namespace\n" > samples
  print "const std::vector<GuideSample> kGuideSamples = {" > samples
  for (i = 1; i <= count; ++i) {
    printf "    {%d, Sample%d, R\"pdf(%s)pdf\"},\n", at[i], i, expected[i] > samples
  }
  print "};" > samples
}
