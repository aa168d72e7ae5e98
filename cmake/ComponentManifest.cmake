# Writes the manifest with which programs use Folivar.dll without its being registered.
#
#   cmake -DOUTPUT=<file> -DIDL=<Folivar.idl> -DARCHITECTURE=<x86 or amd64> -DVERSION=<a.b.c>
#         -P ComponentManifest.cmake

file(READ "${IDL}" idl)
string(REGEX REPLACE "//[^\n]*" "" idl "${idl}")
set(uuid "uuid\\(([0-9A-F-]+)\\)")
set(library_attributes "\\[[^]]*${uuid}[^]]*\\][ \n]*library Folivar ")
if(NOT idl MATCHES "${library_attributes}")
  message(FATAL_ERROR "${IDL}: the library has no identifier")
endif()
set(library "{${CMAKE_MATCH_1}}")
if(NOT idl MATCHES "\\[${uuid}[^]]*\\][ \n]*coclass PDFDocument ")
  message(FATAL_ERROR "${IDL}: the class PDFDocument has no identifier")
endif()
set(class "{${CMAKE_MATCH_1}}")

# Calls between threads go through the system's marshaler for what a type library describes.
set(interfaces)
string(REGEX MATCHALL "\\[object, ${uuid}[^]]*\\][ \n]*interface [A-Za-z_]+ " heads "${idl}")
foreach(head IN LISTS heads)
  string(REGEX MATCH "${uuid}.*interface ([A-Za-z_]+) " head "${head}")
  string(APPEND interfaces "  <comInterfaceExternalProxyStub name=\"${CMAKE_MATCH_2}\"
    iid=\"{${CMAKE_MATCH_1}}\" tlbid=\"${library}\"
    proxyStubClsid32=\"{00020424-0000-0000-C000-000000000046}\"/>\n")
endforeach()

file(
  WRITE "${OUTPUT}"
  "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>
<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">
  <assemblyIdentity type=\"win32\" name=\"Folivar.Automation\" version=\"${VERSION}.0\"
    processorArchitecture=\"${ARCHITECTURE}\"/>
  <file name=\"Folivar.dll\">
    <comClass clsid=\"${class}\" tlbid=\"${library}\" progid=\"Folivar.PDFDocument\"
      threadingModel=\"Apartment\" description=\"PDFDocument\"/>
    <typelib tlbid=\"${library}\" version=\"1.0\" helpdir=\"\"/>
  </file>
${interfaces}</assembly>
")
