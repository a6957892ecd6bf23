# Precompiles the message headers for the targets that include all of them, so that a build after a
# small change takes seconds. For builds that are repeated many times; a preset includes it.
function(zorcs_precompile)
  foreach(target IN ITEMS zorcs_wrappers zorcs_check_objects)
    target_precompile_headers(${target} PRIVATE
      <onyx.pb.h> <algorithm> <memory> <ostream> <string> <tuple> <vector>)
  endforeach()
endfunction()
# The targets come later than the project.
cmake_language(DEFER CALL zorcs_precompile)
