# zorcs_read_schema(file text namespace): sets text to what the schema file says, without comments,
# and namespace to the C++ namespace of its package.
function(zorcs_read_schema file text_variable namespace_variable)
  file(READ ${file} text)
  string(REGEX REPLACE "//[^\n]*" "" text "${text}")
  string(REGEX MATCH "(^|\n)package +([A-Za-z0-9_.]+);" match "${text}")
  string(REPLACE "." "::" namespace "${CMAKE_MATCH_2}")
  set(${text_variable} "${text}" PARENT_SCOPE)
  set(${namespace_variable} ${namespace} PARENT_SCOPE)
endfunction()
